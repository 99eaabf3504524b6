package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kovra.rfid.orla.sim.Bytes;
import com.kovra.rfid.orla.sim.SimControl;
import java.util.function.IntUnaryOperator;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.EnumSource;

/** Event objects, their registration for reader events, and the data of each event type. */
class EventsTest extends NativeTest {

    private static final int WAIT_TIMEOUT = 258;
    private static final int WAIT_FAILED = -1;

    @Test
    void handlesAreCreatedWholeButUsedNarrowedToIntAndSignExtended() {
        SimControl.setPointer("rfidUtils_CreateEvent", 0x1_8000_0005L);
        long wide = ORLANatives.rfidUtils_CreateEvent(99, 1, -1);
        assertEquals(0x1_8000_0005L, wide);
        assertArrayEquals(new long[] {0, 1, 0xFFFF_FFFFL, 0}, SimControl.args("rfidUtils_CreateEvent", -1));

        String[] functions = {"rfidUtils_SetEvent", "rfidUtils_ResetEvent", "rfidUtils_CloseHandle"};
        IntUnaryOperator[] natives = {ORLANatives::rfidUtils_SetEvent, ORLANatives::rfidUtils_ResetEvent,
            ORLANatives::rfidUtils_CloseHandle};
        for (int i = 0; i < functions.length; i++) {
            assertEquals(0, natives[i].applyAsInt((int) wide), functions[i] + " of an unknown handle");
            assertEquals(0xFFFF_FFFF_8000_0005L, SimControl.args(functions[i], -1)[0], functions[i]);
        }
        assertEquals(WAIT_FAILED, ORLANatives.rfidUtils_WaitForSingleObject((int) wide, -1));
        assertArrayEquals(new long[] {0xFFFF_FFFF_8000_0005L, -1L},
                SimControl.args("rfidUtils_WaitForSingleObject", -1), "handle and time-out sign-extended");
    }

    @Test
    void waitForManyCopiesCountHandlesAndPassesTheFlag() {
        long first = ORLANatives.rfidUtils_CreateEvent(0, 1, 0);
        long second = ORLANatives.rfidUtils_CreateEvent(0, 1, 1);
        long[] handles = {first, second, 0x7777};
        assertEquals(1, ORLANatives.rfidUtils_WaitForMultipleObjects(2, handles, false, 0));
        long[] args = SimControl.args("rfidUtils_WaitForMultipleObjects", -1);
        assertArrayEquals(new long[] {2, 0}, new long[] {args[0], args[2]});
        byte[] copied = SimControl.blob("rfidUtils_WaitForMultipleObjects", -1, "handles");
        assertArrayEquals(new long[] {first, second}, fields(copied, 0, 8, 8, 8));

        assertEquals(WAIT_TIMEOUT, ORLANatives.rfidUtils_WaitForMultipleObjects(2, handles, true, 0));
        assertEquals(1L, SimControl.args("rfidUtils_WaitForMultipleObjects", -1)[2]);

        assertEquals(WAIT_FAILED, ORLANatives.rfidUtils_WaitForMultipleObjects(0, null, false, -1));
        assertArrayEquals(new byte[0], SimControl.blob("rfidUtils_WaitForMultipleObjects", -1, "handles"));
        assertEquals(-1L, SimControl.args("rfidUtils_WaitForMultipleObjects", -1)[3], "time-out sign-extended");
    }

    private static EVENT_DATA eventData(int reader, RFID_EVENT_TYPE type, Bytes.Builder record) {
        SimControl.setOutput("RFID_GetEventData", record.build());
        EVENT_DATA data = new EVENT_DATA();
        assertEquals(0, ORLANatives.RFID_GetEventData(reader, type, data));
        assertEquals(type.ordinal(), SimControl.args("RFID_GetEventData", -1)[1]);
        return data;
    }

    @Test
    void eachEventTypeFillsItsOwnFieldsAsTheBytesStand() {
        int r = connect();
        EVENT_DATA gpi = eventData(r, RFID_EVENT_TYPE.GPI_EVENT, new Bytes.Builder(16).u16(0, 0x8002).u8(2, 1));
        assertEquals(-32766, gpi.port);
        assertTrue(gpi.eventInfo);
        EVENT_DATA antenna = eventData(r, RFID_EVENT_TYPE.ANTENNA_EVENT,
                new Bytes.Builder(16).u16(0, 0xFFFD).u32(4, 0x1_0002L));
        assertArrayEquals(new short[] {-3, 2}, new short[] {antenna.antennaID, antenna.enumAntennaEvent});
        assertEquals(-1, eventData(r, RFID_EVENT_TYPE.DISCONNECTION_EVENT, new Bytes.Builder(16).u32(0, 0xFFFF))
                .enumEventInfo);
        assertEquals(1, eventData(r, RFID_EVENT_TYPE.HANDHELD_TRIGGER_EVENT, new Bytes.Builder(16).u32(0, 1))
                .enumEventInfo);
        EVENT_DATA exception = eventData(r, RFID_EVENT_TYPE.READER_EXCEPTION_EVENT,
                new Bytes.Builder(1088).u32(0, 0x2_0003L).wide(4, "antenna 2 lost", 271));
        assertEquals(3, exception.enumExceptionType);
        assertEquals("antenna 2 lost", exception.exceptionInfo);
        EVENT_DATA temperature = eventData(r, RFID_EVENT_TYPE.TEMPERATURE_ALARM_EVENT,
                new Bytes.Builder(16).u32(0, 0x1_0001L).s32(4, -40).u32(8, 2));
        assertArrayEquals(new short[] {1, -40, 2}, new short[] {temperature.enumSourceName,
            temperature.currentTemperature, temperature.enumAlarmLevel});

        EVENT_DATA alarm = eventData(r, RFID_EVENT_TYPE.NXP_EAS_ALARM_EVENT, new Bytes.Builder(16).s64(0, -5).u16(8, 4));
        assertEquals("-5", alarm.alarmCode);
        assertEquals(4, alarm.antennaID);
        assertEquals("9223372036854775807", eventData(r, RFID_EVENT_TYPE.NXP_EAS_ALARM_EVENT,
                new Bytes.Builder(16).s64(0, Long.MAX_VALUE)).alarmCode);

        assertEquals("", eventData(r, RFID_EVENT_TYPE.READER_EXCEPTION_EVENT, new Bytes.Builder(1088).u32(0, 1))
                .exceptionInfo, "an empty text is an empty string, not null");
        // The virtual machine keeps bit 0 of a boolean set through JNI: the byte 2 passed as it stands reads
        // false, where a byte normalised to 1 would read true.
        assertFalse(eventData(r, RFID_EVENT_TYPE.GPI_EVENT, new Bytes.Builder(16).u8(2, 2)).eventInfo);
        assertTrue(eventData(r, RFID_EVENT_TYPE.GPI_EVENT, new Bytes.Builder(16).u8(2, 3)).eventInfo);
    }

    @ParameterizedTest
    @EnumSource(names = {"TAG_READ_EVENT", "BUFFER_FULL_WARNING_EVENT", "INVENTORY_START_EVENT",
        "INVENTORY_STOP_EVENT", "ACCESS_START_EVENT", "ACCESS_STOP_EVENT", "BUFFER_FULL_EVENT", "DEBUG_INFO_EVENT",
        "GPS_DATA_EVENT"})
    void typesWithoutDataReturnZeroWithoutAsking(RFID_EVENT_TYPE type) {
        SimControl.setStatus("RFID_GetEventData", 9);
        EVENT_DATA data = new EVENT_DATA();
        assertEquals(0, ORLANatives.RFID_GetEventData(connect(), type, data));
        assertEquals(0, SimControl.count("RFID_GetEventData"));
    }

    @ParameterizedTest
    @EnumSource(names = {"GPI_EVENT", "ANTENNA_EVENT", "DISCONNECTION_EVENT", "NXP_EAS_ALARM_EVENT",
        "READER_EXCEPTION_EVENT", "HANDHELD_TRIGGER_EVENT", "TEMPERATURE_ALARM_EVENT"})
    void failedEventDataLeavesEveryFieldUnchanged(RFID_EVENT_TYPE type) {
        int reader = connect();
        SimControl.setOutput("RFID_GetEventData", new Bytes.Builder(1088).u32(0, 0x0101_0101L).s64(4, -1).build());
        SimControl.setStatus("RFID_GetEventData", 6);
        EVENT_DATA data = new EVENT_DATA();
        assertEquals(6, ORLANatives.RFID_GetEventData(reader, type, data));
        assertEquals(1, SimControl.count("RFID_GetEventData"));
        assertArrayEquals(new short[8], new short[] {data.port, data.antennaID, data.enumAntennaEvent,
            data.enumEventInfo, data.enumExceptionType, data.enumSourceName, data.currentTemperature,
            data.enumAlarmLevel});
        assertFalse(data.eventInfo);
        assertNull(data.alarmCode);
        assertNull(data.exceptionInfo);
    }
}
