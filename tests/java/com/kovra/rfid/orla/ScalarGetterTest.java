package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotEquals;

import com.kovra.rfid.orla.sim.Bytes;
import com.kovra.rfid.orla.sim.Call;
import com.kovra.rfid.orla.sim.SimControl;
import java.util.Arrays;
import org.junit.jupiter.api.Test;

/**
 * The getters of one or two scalars: the slots handed to the reader start at 0, what the reader writes
 * reaches the Java array elements (or field) with its width and sign on success only, and a failed call
 * leaves what Java held (the idle time-out excepted), though the simulator writes its scripted bytes
 * whatever the status.
 */
class ScalarGetterTest extends NativeTest {

    private static final short ANTENNA = (short) 0x8003;

    /** A getter run on a reader with out-parameters holding marks; returns its status, then the values. */
    private interface Getter {
        long[] run(int reader);
    }

    private static long[] v(long... values) {
        return values;
    }

    private static long z(boolean b) {
        return b ? 1 : 0;
    }

    private static Bytes.Builder out(int size) {
        return new Bytes.Builder(size);
    }

    /**
     * Scripts the output of fn and runs the getter with status 0, then with a failing status: the values read
     * expected, then the marks; the named out-parameters reach the reader zeroed. Returns the last call.
     */
    private static Call check(String fn, Bytes.Builder output, long[] expected, long[] marks, Getter getter,
            String... zeroed) {
        int reader = connect();
        SimControl.setStatus(fn, 0);
        SimControl.setOutput(fn, output.build());
        long[] got = getter.run(reader);
        assertEquals(0, got[0], fn);
        assertArrayEquals(expected, Arrays.copyOfRange(got, 1, got.length), fn);
        for (String name : zeroed) {
            byte[] slot = Call.last(fn).blob(name);
            assertArrayEquals(new byte[slot.length], slot, fn + ": " + name + " preset to 0");
        }
        SimControl.setStatus(fn, FAILED);
        got = getter.run(reader);
        assertEquals(FAILED, got[0], fn);
        assertArrayEquals(marks, Arrays.copyOfRange(got, 1, got.length), fn + ": untouched on failure");
        return Call.last(fn);
    }

    @Test
    void antennaGetters() {
        check("RFID_GetAntennaMode", out(4).u32(0, 0x8000_0001L), v(0x8000_0001), v(-9), r -> {
            int[] mode = {-9};
            return v(ORLANatives.RFID_GetAntennaMode(r, mode), mode[0]);
        }, "mode");
        Call call = check("RFID_GetReadPointStatus", out(1).u8(0, 1), v(1), v(0), r -> {
            boolean[] enabled = {false};
            return v(ORLANatives.RFID_GetReadPointStatus(r, ANTENNA, enabled), z(enabled[0]));
        }, "status");
        assertEquals(0x8003L, call.arg(1), "the antenna zero-extended");
        call = check("RFID_GetPhysicalAntennaProperties", out(5).u8(0, 1).s32(1, -5), v(1, -5), v(0, -9), r -> {
            boolean[] connected = {false};
            int[] gain = {-9};
            return v(ORLANatives.RFID_GetPhysicalAntennaProperties(r, ANTENNA, connected, gain), z(connected[0]),
                    gain[0]);
        });
        assertEquals(0x8003L, call.arg(1));
    }

    @Test
    void radioGetters() {
        Call call = check("RFID_GetRFMode", out(8).u32(0, 0xFFFF_FFFEL).u32(4, 7), v(-2, 7), v(11, 22), r -> {
            int[] first = {11};
            int[] second = {22};
            return v(ORLANatives.RFID_GetRFMode(r, (short) 3, first, second), first[0], second[0]);
        }, "first", "second");
        assertEquals(3L, call.arg(1));
        call = check("RFID_GetDutyCycle", out(2).u16(0, 0x8001), v((short) 0x8001), v(5), r -> {
            short[] duty = {5};
            return v(ORLANatives.RFID_GetDutyCycle(r, duty), duty[0]);
        }, "dutyCycleIndex");
        assertNotEquals(0L, call.arg(2), "a scratch area is passed");
        // The time-out is cleared before the call, so a failure leaves 0 in Java.
        check("RFID_GetRadioIdleTimeout", out(4).u32(0, 0xFFFF_FFFFL), v(-1), v(0), r -> {
            int[] timeout = {1234};
            return v(ORLANatives.RFID_GetRadioIdleTimeout(r, timeout), timeout[0]);
        }, "timeout");
        check("RFID_GetRadioPowerState", out(1).u8(0, 0), v(0), v(1), r -> {
            boolean[] on = {true};
            return v(ORLANatives.RFID_GetRadioPowerState(r, on), z(on[0]));
        });
    }

    @Test
    void portGetters() {
        Call call = check("RFID_GetGPIState", out(5).u8(0, 1).u32(1, 0x8000_0001L), v(1, 0x8000_0001), v(0, 3), r -> {
            boolean[] state = {false};
            int[] value = {3};
            return v(ORLANatives.RFID_GetGPIState(r, 2, state, value), z(state[0]), value[0]);
        });
        assertEquals(2L, call.arg(1));
        check("RFID_GetGPOState", out(1).u8(0, 0), v(0), v(1), r -> {
            boolean[] state = {true};
            return v(ORLANatives.RFID_GetGPOState(r, 7, state), z(state[0]));
        }, "state");
        check("RFID_GetGPIDebounceTime", out(4).u32(0, 0xFFFF_FFF0L), v(-16), v(8), r -> {
            int[] value = {8};
            return v(ORLANatives.RFID_GetGPIDebounceTime(r, value, new int[4]), value[0]);
        }, "value");
    }

    @Test
    void healthAccessResultAndApplicationGetters() {
        Call call = check("RFID_GetHealthStatus", out(4).u32(0, 0x0001_8002L), v(-32766), v(-7), r -> {
            short[] health = {-7};
            return v(ORLANatives.RFID_GetHealthStatus(r, HEALTH_PARAM.HEALTH_PARAM_DATABASE, health, null), health[0]);
        }, "status");
        assertEquals(3L, call.arg(1), "the parameter's ordinal");
        call = check("RFID_GetLastAccessResult", out(8).u32(0, 0xFFFF_FFFEL).u32(4, 7), v(-2, 7), v(-1, -1), r -> {
            int[] succeeded = {-1};
            int[] failed = {-1};
            return v(ORLANatives.RFID_GetLastAccessResult(r, succeeded, failed), succeeded[0], failed[0]);
        }, "first", "second");
        check("RFID_GetSaveLlrpConfigStatus", out(1).u8(0, 1), v(1), v(0), r -> {
            boolean[] saved = {false};
            return v(ORLANatives.RFID_GetSaveLlrpConfigStatus(r, saved), z(saved[0]));
        }, "status");
        call = check("RFID_GetUserAppRunStatusW", out(1).u8(0, 1), v(1), v(0), r -> {
            USER_APP_RUN_STATUS run = new USER_APP_RUN_STATUS();
            ORLANatives.RFID_InstallUserApp(r, "logger");
            return v(ORLANatives.RFID_GetCurrentUserAppRunStatus(r, "logger", run), z(run.runStatus));
        }, "running");
        assertEquals("logger", text(call.blob("name"), 0));
    }
}
