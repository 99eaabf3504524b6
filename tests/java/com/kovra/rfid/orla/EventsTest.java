package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kovra.rfid.orla.sim.Bytes;
import com.kovra.rfid.orla.sim.SimControl;
import com.kovra.rfid.orla.sim.SimReader;
import java.util.function.IntUnaryOperator;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.EnumSource;

/** Event objects, their registration for reader events, and the data of each event type. */
class EventsTest extends NativeTest {

    private static final int WAIT_TIMEOUT = 258;
    private static final int WAIT_FAILED = -1;

    @Test
    void createPassesBothFlagsAndReturnsTheWholeHandle() {
        SimControl.setPointer("rfidUtils_CreateEvent", 0x1_2345_6789L);
        assertEquals(0x1_2345_6789L, ORLANatives.rfidUtils_CreateEvent(99, 1, -1));
        assertArrayEquals(new long[] {0, 1, 0xFFFF_FFFFL, 0}, SimControl.args("rfidUtils_CreateEvent", -1));
    }

    @Test
    void singleHandleMethodsNarrowToIntAndSignExtend() {
        long wide = 0x1_8000_0005L;
        String[] functions = {"rfidUtils_SetEvent", "rfidUtils_ResetEvent", "rfidUtils_CloseHandle"};
        IntUnaryOperator[] natives = {ORLANatives::rfidUtils_SetEvent, ORLANatives::rfidUtils_ResetEvent,
            ORLANatives::rfidUtils_CloseHandle};
        for (int i = 0; i < functions.length; i++) {
            assertEquals(0, natives[i].applyAsInt((int) wide), functions[i] + " of an unknown handle");
            assertEquals(0xFFFF_FFFF_8000_0005L, SimControl.args(functions[i], -1)[0], functions[i]);
        }
        assertEquals(WAIT_FAILED, ORLANatives.rfidUtils_WaitForSingleObject((int) wide, -1));
        long[] args = SimControl.args("rfidUtils_WaitForSingleObject", -1);
        assertEquals(0xFFFF_FFFF_8000_0005L, args[0]);
        assertEquals(0xFFFF_FFFFL, args[1]);
    }

    @Test
    void eventObjectsAreSetWaitedOnResetAndClosed() {
        int event = (int) ORLANatives.rfidUtils_CreateEvent(0, 1, 0);
        assertEquals(WAIT_TIMEOUT, ORLANatives.rfidUtils_WaitForSingleObject(event, 0));
        assertEquals(1, ORLANatives.rfidUtils_SetEvent(event));
        assertEquals(0, ORLANatives.rfidUtils_WaitForSingleObject(event, 0));
        assertEquals(1, ORLANatives.rfidUtils_ResetEvent(event));
        assertEquals(WAIT_TIMEOUT, ORLANatives.rfidUtils_WaitForSingleObject(event, 10));
        assertEquals(1, ORLANatives.rfidUtils_CloseHandle(event));
        assertEquals(0, ORLANatives.rfidUtils_SetEvent(event));
    }

    @Test
    void waitForManyCopiesCountHandlesAndPassesTheFlag() {
        long first = ORLANatives.rfidUtils_CreateEvent(0, 1, 0);
        long second = ORLANatives.rfidUtils_CreateEvent(0, 1, 1);
        long[] handles = {first, second, 0x7777};

        assertEquals(1, ORLANatives.rfidUtils_WaitForMultipleObjects(2, handles, false, 0));
        long[] args = SimControl.args("rfidUtils_WaitForMultipleObjects", -1);
        assertEquals(2L, args[0]);
        assertEquals(0L, args[2]);
        byte[] copied = SimControl.blob("rfidUtils_WaitForMultipleObjects", -1, "handles");
        assertArrayEquals(new long[] {first, second}, new long[] {Bytes.s64(copied, 0), Bytes.s64(copied, 8)});

        assertEquals(WAIT_TIMEOUT, ORLANatives.rfidUtils_WaitForMultipleObjects(2, handles, true, 0));
        assertEquals(1L, SimControl.args("rfidUtils_WaitForMultipleObjects", -1)[2]);
        assertArrayEquals(new long[] {first, second, 0x7777}, handles, "the Java array is not changed");
    }

    @Test
    void waitForNoneUsesAnEmptyCopy() {
        assertEquals(WAIT_FAILED, ORLANatives.rfidUtils_WaitForMultipleObjects(0, new long[] {5}, false, -1));
        assertArrayEquals(new byte[0], SimControl.blob("rfidUtils_WaitForMultipleObjects", -1, "handles"));
        ORLANatives.rfidUtils_WaitForMultipleObjects(0, null, false, 0);
        assertArrayEquals(new byte[0], SimControl.blob("rfidUtils_WaitForMultipleObjects", -1, "handles"));
    }

    @Test
    void registrationPassesTheOrdinalAndTheNarrowedHandle() {
        ORLANatives.RFID_RegisterEventNotification(-7, RFID_EVENT_TYPE.NXP_EAS_ALARM_EVENT, (int) 0xFFFF_FFFEL);
        assertArrayEquals(new long[] {-7L, 10, -2L}, SimControl.args("RFID_RegisterEventNotification", -1));
        ORLANatives.RFID_DeregisterEventNotification(-7, RFID_EVENT_TYPE.GPS_DATA_EVENT);
        assertArrayEquals(new long[] {-7L, 15}, SimControl.args("RFID_DeregisterEventNotification", -1));
    }

    @Test
    void registeredEventIsSetWhenTheReaderRaisesIt() {
        int reader = TagDataTest.connect();
        int event = (int) ORLANatives.rfidUtils_CreateEvent(0, 0, 0);
        assertEquals(0, ORLANatives.RFID_RegisterEventNotification(reader, RFID_EVENT_TYPE.ANTENNA_EVENT, event));
        SimReader.raiseEvent(reader, 3, new Bytes.Builder(16).u16(0, 2).u32(4, 1).build());
        assertEquals(0, ORLANatives.rfidUtils_WaitForSingleObject(event, 1000));

        EVENT_DATA data = new EVENT_DATA();
        assertEquals(0, ORLANatives.RFID_GetEventData(reader, RFID_EVENT_TYPE.ANTENNA_EVENT, data));
        assertEquals(2, data.antennaID);
        assertEquals(1, data.enumAntennaEvent);
        assertEquals(0, ORLANatives.RFID_DeregisterEventNotification(reader, RFID_EVENT_TYPE.ANTENNA_EVENT));
    }

    private static EVENT_DATA eventData(int reader, RFID_EVENT_TYPE type, byte[] record) {
        SimControl.setOutput("RFID_GetEventData", record);
        EVENT_DATA data = new EVENT_DATA();
        assertEquals(0, ORLANatives.RFID_GetEventData(reader, type, data));
        assertEquals(type.ordinal(), SimControl.args("RFID_GetEventData", -1)[1]);
        return data;
    }

    @Test
    void eachEventTypeFillsItsOwnFields() {
        int reader = TagDataTest.connect();
        EVENT_DATA gpi = eventData(reader, RFID_EVENT_TYPE.GPI_EVENT,
                new Bytes.Builder(16).u16(0, 0x8002).u8(2, 1).build());
        assertEquals(-32766, gpi.port);
        assertTrue(gpi.eventInfo);

        EVENT_DATA antenna = eventData(reader, RFID_EVENT_TYPE.ANTENNA_EVENT,
                new Bytes.Builder(16).u16(0, 0xFFFD).u32(4, 0x1_0002L).build());
        assertEquals(-3, antenna.antennaID);
        assertEquals(2, antenna.enumAntennaEvent, "low 16 bits of the enumeration");

        EVENT_DATA disconnection = eventData(reader, RFID_EVENT_TYPE.DISCONNECTION_EVENT,
                new Bytes.Builder(16).u32(0, 0xFFFF).build());
        assertEquals(-1, disconnection.enumEventInfo);
        EVENT_DATA handheld = eventData(reader, RFID_EVENT_TYPE.HANDHELD_TRIGGER_EVENT,
                new Bytes.Builder(16).u32(0, 1).build());
        assertEquals(1, handheld.enumEventInfo);

        EVENT_DATA exception = eventData(reader, RFID_EVENT_TYPE.READER_EXCEPTION_EVENT,
                new Bytes.Builder(1088).u32(0, 0x2_0003L).wide(4, "antenna 2 lost", 271).build());
        assertEquals(3, exception.enumExceptionType);
        assertEquals("antenna 2 lost", exception.exceptionInfo);

        EVENT_DATA temperature = eventData(reader, RFID_EVENT_TYPE.TEMPERATURE_ALARM_EVENT,
                new Bytes.Builder(16).u32(0, 0x1_0001L).s32(4, -40).u32(8, 2).build());
        assertEquals(1, temperature.enumSourceName);
        assertEquals(-40, temperature.currentTemperature);
        assertEquals(2, temperature.enumAlarmLevel);
        assertNull(temperature.alarmCode);
    }

    @Test
    void alarmCodesBecomeDecimalText() {
        int reader = TagDataTest.connect();
        EVENT_DATA negative = eventData(reader, RFID_EVENT_TYPE.NXP_EAS_ALARM_EVENT,
                new Bytes.Builder(16).s64(0, -5).u16(8, 4).build());
        assertEquals("-5", negative.alarmCode);
        assertEquals(4, negative.antennaID);

        EVENT_DATA largest = eventData(reader, RFID_EVENT_TYPE.NXP_EAS_ALARM_EVENT,
                new Bytes.Builder(16).s64(0, Long.MAX_VALUE).u16(8, 0xFFFF).build());
        assertEquals("9223372036854775807", largest.alarmCode);
        assertEquals(-1, largest.antennaID);
    }

    @ParameterizedTest
    @EnumSource(names = {"TAG_READ_EVENT", "BUFFER_FULL_WARNING_EVENT", "INVENTORY_START_EVENT",
        "INVENTORY_STOP_EVENT", "ACCESS_START_EVENT", "ACCESS_STOP_EVENT", "BUFFER_FULL_EVENT", "DEBUG_INFO_EVENT",
        "GPS_DATA_EVENT"})
    void typesWithoutDataReturnZeroWithoutAsking(RFID_EVENT_TYPE type) {
        SimControl.setStatus("RFID_GetEventData", 9);
        EVENT_DATA data = new EVENT_DATA();
        data.antennaID = 77;
        assertEquals(0, ORLANatives.RFID_GetEventData(TagDataTest.connect(), type, data));
        assertEquals(0, SimControl.count("RFID_GetEventData"));
        assertEquals(77, data.antennaID);
    }

    @ParameterizedTest
    @EnumSource(names = {"GPI_EVENT", "ANTENNA_EVENT", "DISCONNECTION_EVENT", "NXP_EAS_ALARM_EVENT",
        "READER_EXCEPTION_EVENT", "HANDHELD_TRIGGER_EVENT", "TEMPERATURE_ALARM_EVENT"})
    void failedEventDataLeavesEveryFieldUnchanged(RFID_EVENT_TYPE type) {
        int reader = TagDataTest.connect();
        SimControl.setOutput("RFID_GetEventData", new Bytes.Builder(1088).u32(0, 0x0101_0101L).s64(4, -1)
                .build());
        SimControl.setStatus("RFID_GetEventData", 6);
        EVENT_DATA data = new EVENT_DATA();
        data.exceptionInfo = "kept";

        assertEquals(6, ORLANatives.RFID_GetEventData(reader, type, data));
        assertEquals(1, SimControl.count("RFID_GetEventData"));
        assertEquals(0, data.port);
        assertFalse(data.eventInfo);
        assertEquals(0, data.antennaID);
        assertEquals(0, data.enumAntennaEvent);
        assertEquals(0, data.enumEventInfo);
        assertNull(data.alarmCode);
        assertEquals(0, data.enumExceptionType);
        assertEquals("kept", data.exceptionInfo);
        assertEquals(0, data.enumSourceName);
        assertEquals(0, data.currentTemperature);
        assertEquals(0, data.enumAlarmLevel);
    }
}
