package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotEquals;
import static org.junit.jupiter.api.Assertions.assertNull;

import com.kovra.rfid.orla.sim.Bytes;
import com.kovra.rfid.orla.sim.Call;
import com.kovra.rfid.orla.sim.SimControl;
import org.junit.jupiter.api.Test;

/**
 * Start, stop, report and extra triggers as the inventory hands them to the
 * reader: the 64 bytes of the trigger record, the records it points at and
 * the 256-byte extra trigger block, read at the reader's offsets.
 */
class TriggerTest extends NativeTest {

    /** No such reader: the simulator records the call and starts nothing. */
    private static final int NO_READER = 77;

    private static Call inventory(TRIGGER_INFO trigger) {
        ORLANatives.RFID_PerformInventory(NO_READER, null, null, trigger);
        return Call.last("RFID_PerformInventory");
    }

    private static TRIGGER_INFO start(START_TRIGGER_TYPE type) {
        TRIGGER_INFO t = new TRIGGER_INFO();
        t.startTrigger.type = type;
        return t;
    }

    private static TRIGGER_INFO stop(STOP_TRIGGER_TYPE type) {
        TRIGGER_INFO t = new TRIGGER_INFO();
        t.stopTrigger.type = type;
        return t;
    }

    private static SYSTEMTIME time(int first) {
        SYSTEMTIME t = new SYSTEMTIME();
        t.Year = (short) first;
        t.Month = (short) (first + 1);
        t.DayOfWeek = (short) (first + 2);
        t.Day = (short) (first + 3);
        t.Hour = (short) (first + 4);
        t.Minute = (short) (first + 5);
        t.Second = (short) (first + 6);
        t.Milliseconds = (short) (first + 7);
        return t;
    }

    private static void assertTime(int first, byte[] record) {
        assertEquals(16, record.length);
        for (int i = 0; i < 8; i++) {
            assertEquals((first + i) & 0xFFFF, Bytes.u16(record, 2 * i), "member " + i);
        }
    }

    private static void assertZero(byte[] b, int from, int to) {
        for (int i = from; i < to; i++) {
            assertEquals(0, b[i], "byte " + i);
        }
    }

    @Test
    void periodicStartFillsThePresetTimeAndOverwritesTheLowHalfAt8() {
        TRIGGER_INFO t = start(START_TRIGGER_TYPE.START_TRIGGER_TYPE_PERIODIC);
        t.tagReportTrigger = 0x7FFF_0001;
        t.startTrigger.value.periodic.periodMilliseconds = 0x89AB_CDEF;
        t.startTrigger.value.periodic.startTime = time(0xFFF8);

        Call call = inventory(t);
        byte[] r = call.blob("triggerInfo");
        assertEquals(64, r.length);
        assertEquals(1L, Bytes.u32(r, 0));
        assertEquals(0x89AB_CDEFL, Bytes.u32(r, 8));
        assertNotEquals(0L, Bytes.u32(r, 12), "the time-of-day pointer keeps its high half");
        assertNotEquals(0L, Bytes.ptr(r, 16));
        assertEquals(0x7FFF_0001L, Bytes.u32(r, 36));
        assertTime(0xFFF8, call.blob("triggerInfo.startTrigger.startTime"));
    }

    @Test
    void otherStartValuesSitAtTheirOffsets() {
        TRIGGER_INFO gpi = start(START_TRIGGER_TYPE.START_TRIGGER_TYPE_GPI);
        gpi.startTrigger.value.gpi.portNumber = (short) 0x8001;
        gpi.startTrigger.value.gpi.eventInfo = true;
        gpi.startTrigger.value.gpi.timeoutMilliseconds = -1;
        byte[] r = inventory(gpi).blob("triggerInfo");
        assertEquals(2L, Bytes.u32(r, 0));
        assertEquals(0x8001, Bytes.u16(r, 8));
        assertEquals(1, Bytes.u8(r, 10));
        assertEquals(0xFFFF_FFFFL, Bytes.u32(r, 12));

        TRIGGER_INFO handheld = start(START_TRIGGER_TYPE.START_TRIGGER_TYPE_HANDHELD);
        handheld.startTrigger.value.handheld.handheldEvent = HANDHELD_TRIGGER_EVENT_TYPE.HANDHELD_TRIGGER_PRESSED;
        handheld.startTrigger.value.handheld.timeoutMilliseconds = 500;
        r = inventory(handheld).blob("triggerInfo");
        assertEquals(3L, Bytes.u32(r, 0));
        assertEquals(1L, Bytes.u32(r, 8));
        assertEquals(500L, Bytes.u32(r, 12));

        TRIGGER_INFO timelapse = start(START_TRIGGER_TYPE.START_TRIGGER_TYPE_TIMELAPSE);
        timelapse.startTrigger.value.timelapse.startTime.Hour = 23;
        timelapse.startTrigger.value.timelapse.startTime.Minute = 59;
        timelapse.startTrigger.value.timelapse.startTime.Second = (short) 0xFFFF;
        timelapse.startTrigger.value.timelapse.period = 3_600_000;
        Call call = inventory(timelapse);
        r = call.blob("triggerInfo");
        assertEquals(4L, Bytes.u32(r, 0));
        assertNotEquals(0L, Bytes.ptr(r, 8));
        assertEquals(3_600_000L, Bytes.u32(r, 16));
        assertArrayEquals(new byte[] {23, 0, 59, 0, (byte) 0xFF, (byte) 0xFF},
                call.blob("triggerInfo.startTrigger.startTime"));

        TRIGGER_INFO distance = start(START_TRIGGER_TYPE.START_TRIGGER_TYPE_DISTANCE);
        distance.startTrigger.value.distance.value = -5;
        r = inventory(distance).blob("triggerInfo");
        assertEquals(5L, Bytes.u32(r, 0));
        assertEquals(0xFFFF_FFFBL, Bytes.u32(r, 8));
    }

    @Test
    void immediateStartLeavesBothZeroedTimeBlocksInPlace() {
        byte[] r = inventory(start(START_TRIGGER_TYPE.START_TRIGGER_TYPE_IMMEDIATE)).blob("triggerInfo");
        assertEquals(0L, Bytes.u32(r, 0));
        long timeOfDay = Bytes.ptr(r, 8);
        long systemTime = Bytes.ptr(r, 16);
        assertNotEquals(0L, timeOfDay);
        assertNotEquals(0L, systemTime);
        assertNotEquals(timeOfDay, systemTime);
        assertArrayEquals(new byte[6], SimControl.read(timeOfDay, 6), "never freed, so still readable");
        assertArrayEquals(new byte[16], SimControl.read(systemTime, 16));
    }

    @Test
    void stopValuesSitAtTheirOffsets() {
        TRIGGER_INFO duration = stop(STOP_TRIGGER_TYPE.STOP_TRIGGER_TYPE_DURATION);
        duration.stopTrigger.value.duration = -2;
        byte[] r = inventory(duration).blob("triggerInfo");
        assertEquals(1L, Bytes.u32(r, 24));
        assertEquals(0xFFFF_FFFEL, Bytes.u32(r, 28));

        TRIGGER_INFO gpi = stop(STOP_TRIGGER_TYPE.STOP_TRIGGER_TYPE_GPI_WITH_TIMEOUT);
        gpi.stopTrigger.value.gpi = new GPI_TRIGGER();
        gpi.stopTrigger.value.gpi.portNumber = 3;
        gpi.stopTrigger.value.gpi.eventInfo = true;
        gpi.stopTrigger.value.gpi.timeoutMilliseconds = 0x1234_5678;
        r = inventory(gpi).blob("triggerInfo");
        assertEquals(2L, Bytes.u32(r, 24));
        assertEquals(3, Bytes.u16(r, 28));
        assertEquals(1, Bytes.u8(r, 30));
        assertEquals(0x1234_5678L, Bytes.u32(r, 32));

        TRIGGER_INFO observation = stop(STOP_TRIGGER_TYPE.STOP_TRIGGER_TYPE_TAG_OBSERVATION_WITH_TIMEOUT);
        observation.stopTrigger.value.tagObservation = withTimeout(0xFFFF, 700);
        r = inventory(observation).blob("triggerInfo");
        assertEquals(3L, Bytes.u32(r, 24));
        assertEquals(0xFFFF, Bytes.u16(r, 28));
        assertEquals(700L, Bytes.u32(r, 32));

        TRIGGER_INFO attempts = stop(STOP_TRIGGER_TYPE.STOP_TRIGGER_TYPE_N_ATTEMPTS_WITH_TIMEOUT);
        attempts.stopTrigger.value.numAttempts = withTimeout(4, 900);
        r = inventory(attempts).blob("triggerInfo");
        assertEquals(4L, Bytes.u32(r, 24));
        assertEquals(4, Bytes.u16(r, 28));
        assertEquals(900L, Bytes.u32(r, 32));

        TRIGGER_INFO handheld = stop(STOP_TRIGGER_TYPE.STOP_TRIGGER_TYPE_HANDHELD_WITH_TIMEOUT);
        handheld.stopTrigger.value.handheld = new HANDHELD_TRIGGER();
        handheld.stopTrigger.value.handheld.handheldEvent = HANDHELD_TRIGGER_EVENT_TYPE.HANDHELD_TRIGGER_RELEASED;
        handheld.stopTrigger.value.handheld.timeoutMilliseconds = 250;
        r = inventory(handheld).blob("triggerInfo");
        assertEquals(5L, Bytes.u32(r, 24));
        assertEquals(0L, Bytes.u32(r, 28));
        assertEquals(250L, Bytes.u32(r, 32));

        TRIGGER_INFO timelapse = stop(STOP_TRIGGER_TYPE.STOP_TRIGGER_TYPE_TIMELAPSE);
        timelapse.stopTrigger.value.timelapse = new TIMELAPSE_STOP_TRIGGER();
        timelapse.stopTrigger.value.timelapse.totalDuration = 60_000;
        timelapse.stopTrigger.value.timelapse.periodicDuration = 1_000;
        r = inventory(timelapse).blob("triggerInfo");
        assertEquals(6L, Bytes.u32(r, 24));
        assertEquals(60_000L, Bytes.u32(r, 28));
        assertEquals(1_000L, Bytes.u32(r, 32));
    }

    private static TRIGGER_WITH_TIMEOUT withTimeout(int n, int timeout) {
        TRIGGER_WITH_TIMEOUT t = new TRIGGER_WITH_TIMEOUT();
        t.n = (short) n;
        t.timeoutMilliseconds = timeout;
        return t;
    }

    @Test
    void tagEventsTakeEachOrdinalWithItsOwnTimeout() {
        TRIGGER_INFO t = new TRIGGER_INFO();
        t.tagEventReportInfo = new TAG_EVENT_REPORT_INFO();
        t.tagEventReportInfo.reportNewTagEvent = TAG_EVENT_REPORT_TRIGGER.MODERATED;
        t.tagEventReportInfo.newTagEventModeratedTimeoutMilliseconds = (short) 0x8001;
        t.tagEventReportInfo.reportTagInvisibleEvent = TAG_EVENT_REPORT_TRIGGER.IMMEDIATE;
        t.tagEventReportInfo.tagInvisibleEventModeratedTimeoutMilliseconds = 200;
        t.tagEventReportInfo.reportTagBackToVisibilityEvent = TAG_EVENT_REPORT_TRIGGER.NEVER;
        t.tagEventReportInfo.tagBackToVisibilityModeratedTimeoutMilliseconds = 300;
        t.tagEventReportInfo.reportTagMovingEvent = TAG_MOVING_EVENT_REPORT.TAG_MOVING_EVENT_ENABLE;
        t.tagEventReportInfo.tagStationaryModeratedTimeoutMilliseconds = -1;

        byte[] e = inventory(t).blob("triggerInfo.tagEventReportInfo");
        assertEquals(2L, Bytes.u32(e, 0));
        assertEquals(0x8001, Bytes.u16(e, 4));
        assertEquals(1L, Bytes.u32(e, 8));
        assertEquals(200, Bytes.u16(e, 12));
        assertEquals(0L, Bytes.u32(e, 16));
        assertEquals(300, Bytes.u16(e, 20));
        assertEquals(1L, Bytes.u32(e, 24));
        assertEquals(0xFFFF, Bytes.u16(e, 28));
    }

    @Test
    void absentReportObjectsAreTreatedDifferently() {
        TRIGGER_INFO none = new TRIGGER_INFO();
        Call call = inventory(none);
        assertEquals(0L, Bytes.ptr(call.blob("triggerInfo"), 40), "no tag event reporting: NULL");
        assertNull(call.blob("triggerInfo.tagEventReportInfo"));
        assertArrayEquals(new byte[4], call.blob("triggerInfo.reportTriggers"), "no report triggers: zeroed storage");

        TRIGGER_INFO periodic = new TRIGGER_INFO();
        periodic.reportTriggers = new REPORT_TRIGGERS();
        periodic.reportTriggers.periodicReportDuration = -1;
        assertEquals(0xFFFF_FFFFL, Bytes.u32(inventory(periodic).blob("triggerInfo.reportTriggers"), 0));
    }

    @Test
    void extraBlockIsZeroWithoutEntries() {
        byte[] sevenNulls = inventory(new TRIGGER_INFO()).blob("triggerInfo.extraTriggers");
        assertArrayEquals(new byte[256], sevenNulls);

        TRIGGER_INFO noArrays = new TRIGGER_INFO();
        noArrays.extraTriggers.startTrigger = null;
        noArrays.extraTriggers.stopTrigger = null;
        Call call = inventory(noArrays);
        assertNotEquals(0L, Bytes.ptr(call.blob("triggerInfo"), 56));
        assertArrayEquals(new byte[256], call.blob("triggerInfo.extraTriggers"));
    }

    @Test
    void extraStartEntriesGetTimeRecordsOfTheirOwn() {
        TRIGGER_INFO t = new TRIGGER_INFO();
        START_TRIGGER gpi = new START_TRIGGER();
        gpi.type = START_TRIGGER_TYPE.START_TRIGGER_TYPE_GPI;
        gpi.value.gpi.portNumber = 2;
        gpi.value.gpi.eventInfo = true;
        gpi.value.gpi.timeoutMilliseconds = 99;
        START_TRIGGER periodic = new START_TRIGGER();
        periodic.type = START_TRIGGER_TYPE.START_TRIGGER_TYPE_PERIODIC;
        periodic.value.periodic.periodMilliseconds = 1234;
        periodic.value.periodic.startTime = time(2030);
        START_TRIGGER timelapse = new START_TRIGGER();
        timelapse.type = START_TRIGGER_TYPE.START_TRIGGER_TYPE_TIMELAPSE;
        timelapse.value.timelapse.period = 4321;
        timelapse.value.timelapse.startTime.Hour = 7;
        timelapse.value.timelapse.startTime.Minute = 8;
        timelapse.value.timelapse.startTime.Second = 9;
        t.extraTriggers.startTrigger[1] = gpi;
        t.extraTriggers.startTrigger[3] = periodic;
        t.extraTriggers.startTrigger[5] = timelapse;

        Call call = inventory(t);
        byte[] x = call.blob("triggerInfo.extraTriggers");
        assertZero(x, 0, 24);
        assertEquals(2L, Bytes.u32(x, 24));
        assertEquals(2, Bytes.u16(x, 32));
        assertEquals(1, Bytes.u8(x, 34));
        assertEquals(99L, Bytes.u32(x, 36));
        assertZero(x, 48, 72);
        assertEquals(1L, Bytes.u32(x, 72));
        assertEquals(1234L, Bytes.u32(x, 80));
        assertNotEquals(0L, Bytes.ptr(x, 88));
        assertTime(2030, call.blob("triggerInfo.extraTriggers.start[3].startTime"));
        assertZero(x, 96, 120);
        assertEquals(4L, Bytes.u32(x, 120));
        assertNotEquals(0L, Bytes.ptr(x, 128));
        assertEquals(4321L, Bytes.u32(x, 136));
        assertArrayEquals(new byte[] {7, 0, 8, 0, 9, 0}, call.blob("triggerInfo.extraTriggers.start[5].startTime"));
        assertZero(x, 144, 256);
    }

    private static STOP_TRIGGER stopEntry(STOP_TRIGGER_TYPE type) {
        STOP_TRIGGER s = new STOP_TRIGGER();
        s.type = type;
        return s;
    }

    @Test
    void extraTagObservationIsFilledOnlyAfterANumAttemptsObject() {
        TRIGGER_INFO t = new TRIGGER_INFO();
        STOP_TRIGGER[] stops = t.extraTriggers.stopTrigger;
        stops[0] = stopEntry(STOP_TRIGGER_TYPE.STOP_TRIGGER_TYPE_TAG_OBSERVATION_WITH_TIMEOUT);
        stops[0].value.tagObservation = withTimeout(7, 800);
        stops[1] = stopEntry(STOP_TRIGGER_TYPE.STOP_TRIGGER_TYPE_N_ATTEMPTS_WITH_TIMEOUT);
        stops[1].value.numAttempts = withTimeout(5, 600);
        stops[2] = stopEntry(STOP_TRIGGER_TYPE.STOP_TRIGGER_TYPE_TAG_OBSERVATION_WITH_TIMEOUT);
        stops[2].value.tagObservation = withTimeout(9, 900);
        stops[3] = stopEntry(STOP_TRIGGER_TYPE.STOP_TRIGGER_TYPE_N_ATTEMPTS_WITH_TIMEOUT);
        stops[4] = stopEntry(STOP_TRIGGER_TYPE.STOP_TRIGGER_TYPE_TAG_OBSERVATION_WITH_TIMEOUT);
        stops[4].value.tagObservation = withTimeout(11, 1100);
        stops[5] = stopEntry(STOP_TRIGGER_TYPE.STOP_TRIGGER_TYPE_DURATION);
        stops[5].value.duration = 0x10000;
        stops[6] = stopEntry(STOP_TRIGGER_TYPE.STOP_TRIGGER_TYPE_TIMELAPSE);
        stops[6].value.timelapse = new TIMELAPSE_STOP_TRIGGER();
        stops[6].value.timelapse.totalDuration = 1;
        stops[6].value.timelapse.periodicDuration = 2;

        byte[] x = inventory(t).blob("triggerInfo.extraTriggers");
        assertZero(x, 0, 168);
        assertEquals(3L, Bytes.u32(x, 168));
        assertZero(x, 172, 180);
        assertEquals(4L, Bytes.u32(x, 180));
        assertEquals(5, Bytes.u16(x, 184));
        assertEquals(600L, Bytes.u32(x, 188));
        assertEquals(3L, Bytes.u32(x, 192));
        assertEquals(9, Bytes.u16(x, 196));
        assertEquals(900L, Bytes.u32(x, 200));
        assertEquals(4L, Bytes.u32(x, 204));
        assertZero(x, 208, 216);
        assertEquals(3L, Bytes.u32(x, 216));
        assertZero(x, 220, 228);
        assertEquals(1L, Bytes.u32(x, 228));
        assertEquals(0x10000L, Bytes.u32(x, 232));
        assertEquals(6L, Bytes.u32(x, 240));
        assertEquals(1L, Bytes.u32(x, 244));
        assertEquals(2L, Bytes.u32(x, 248));
        assertZero(x, 252, 256);
    }
}
