package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertEquals;

import com.kovra.rfid.orla.sim.SimControl;
import java.lang.reflect.Array;
import java.lang.reflect.Field;
import java.lang.reflect.Modifier;
import java.util.Arrays;
import java.util.function.Supplier;
import java.util.function.ToIntBiFunction;
import org.junit.jupiter.api.Test;

/**
 * The getters of whole records: a failed call leaves every field of the Java object as it was, though the
 * simulator writes its scripted bytes (0x41 in every byte here) whatever the status.
 */
class FailedGetterTest extends NativeTest {

    /** Every public field of value, nested objects and arrays included, as text. */
    private static String describe(Object value) {
        if (value == null || value instanceof String || value instanceof Number || value instanceof Boolean
                || value instanceof Enum) {
            return String.valueOf(value);
        }
        StringBuilder text = new StringBuilder("{");
        if (value.getClass().isArray()) {
            for (int i = 0; i < Array.getLength(value); i++) {
                text.append(describe(Array.get(value, i))).append(' ');
            }
            return text.append('}').toString();
        }
        try {
            for (Field f : value.getClass().getFields()) {
                if (!Modifier.isStatic(f.getModifiers())) {
                    text.append(f.getName()).append('=').append(describe(f.get(value))).append(' ');
                }
            }
        } catch (IllegalAccessException e) {
            throw new AssertionError(e);
        }
        return text.append('}').toString();
    }

    private static <T> void check(String fn, int size, Supplier<T> fresh, ToIntBiFunction<Integer, T> getter) {
        byte[] junk = new byte[size];
        Arrays.fill(junk, (byte) 0x41);
        SimControl.setOutput(fn, junk);
        SimControl.setStatus(fn, FAILED);
        T target = fresh.get();
        assertEquals(FAILED, getter.applyAsInt(connect(), target), fn);
        assertEquals(describe(fresh.get()), describe(target), fn + ": untouched on failure");
    }

    @Test
    void failedCallsWriteNothing() {
        check("RFID_GetSystemInfoW", 5336, SYSTEM_INFO::new, ORLANatives::RFID_GetSystemInfo);
        check("RFID_GetReaderInfoW", 4160, READER_INFO::new, ORLANatives::RFID_GetReaderInfo);
        check("RFID_GetLocalTime", 16, SYSTEMTIME::new, ORLANatives::RFID_GetLocalTime);
        check("RFID_GetReaderStats", 192, READER_STATS::new, (r, s) -> ORLANatives.RFID_GetReaderStats(r, (short) 1, s));
        check("RFID_GetAntennaRfConfig", 32, ANTENNA_RF_CONFIG::new,
                (r, c) -> ORLANatives.RFID_GetAntennaRfConfig(r, (short) 1, c));
        check("RFID_GetCableLossCompensation", 12, CABLE_LOSS_COMPENSATION::new,
                ORLANatives::RFID_GetCableLossCompensation);
        check("RFID_GetUSBOperationMode", 8, USB_OPERATION_MODE_SETTINGS::new, ORLANatives::RFID_GetUSBOperationMode);
        check("RFID_GetTagStorageSettings", 16, TAG_STORAGE_SETTINGS::new, ORLANatives::RFID_GetTagStorageSettings);
        check("RFID_GetSingulationControl", 20, SINGULATION_CONTROL::new,
                (r, c) -> ORLANatives.RFID_GetSingulationControl(r, 1, c));
        check("RFID_GetUpdateStatusW", 1144, UPDATE_STATUS::new, ORLANatives::RFID_GetUpdateStatus);
        check("RFID_GetLastErrorInfoW", 2120, ERROR_INFO::new, ORLANatives::RFID_GetLastErrorInfo);
        check("RFID_GetDllVersionInfoW", 1048, VERSION_INFO::new, (r, v) -> ORLANatives.RFID_GetDllVersionInfo(v));
    }
}
