package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotEquals;
import static org.junit.jupiter.api.Assertions.assertNull;

import com.kovra.rfid.orla.sim.Bytes;
import com.kovra.rfid.orla.sim.Call;
import com.kovra.rfid.orla.sim.SimControl;
import java.util.Arrays;
import org.junit.jupiter.api.Test;

/**
 * Triggers as the inventory hands them to the reader: the 64 bytes of the
 * trigger record, the records it points at and the 256-byte extra trigger
 * block, read at the reader's offsets.
 */
class TriggerTest extends NativeTest {

    /** No such reader: the simulator records the call and starts nothing. */
    private static final int NO_READER = 77;

    private static Call inventory(TRIGGER_INFO trigger) {
        ORLANatives.RFID_PerformInventory(NO_READER, null, null, trigger);
        return Call.last("RFID_PerformInventory");
    }

    private static byte[] record(TRIGGER_INFO trigger) {
        return inventory(trigger).blob("triggerInfo");
    }

    private static byte[] timeBytes(int first) {
        return systemTime(new Bytes.Builder(16), 0, first).build();
    }

    private static TRIGGER_WITH_TIMEOUT withTimeout(int n, int timeout) {
        TRIGGER_WITH_TIMEOUT t = new TRIGGER_WITH_TIMEOUT();
        t.n = (short) n;
        t.timeoutMilliseconds = timeout;
        return t;
    }

    @Test
    void startValuesSitAtTheirOffsets() {
        TRIGGER_INFO t = new TRIGGER_INFO();
        START_TRIGGER_VALUE v = t.startTrigger.value;
        t.tagReportTrigger = 0x7FFF_0001;
        v.periodic.periodMilliseconds = 0x89AB_CDEF;
        v.periodic.startTime = time(0xFFF8);
        v.gpi.portNumber = (short) 0x8001;
        rawBoolean(v.gpi, "eventInfo", 2);
        v.gpi.timeoutMilliseconds = -1;
        v.handheld.handheldEvent = HANDHELD_TRIGGER_EVENT_TYPE.HANDHELD_TRIGGER_PRESSED;
        v.handheld.timeoutMilliseconds = 500;
        v.timelapse.startTime.Hour = 23;
        v.timelapse.startTime.Second = (short) 0xFFFF;
        v.timelapse.period = 3_600_000;
        v.distance.value = -5;

        t.startTrigger.type = START_TRIGGER_TYPE.START_TRIGGER_TYPE_PERIODIC;
        Call call = inventory(t);
        byte[] r = call.blob("triggerInfo");
        assertEquals(64, r.length);
        assertArrayEquals(new long[] {1, 0x89AB_CDEFL, 0x7FFF_0001L}, fields(r, 0, 4, 8, 4, 36, 4));
        assertNotEquals(0L, Bytes.u32(r, 12), "only the low half of the time-of-day pointer is overwritten");
        assertArrayEquals(timeBytes(0xFFF8), call.blob("triggerInfo.startTrigger.startTime"));

        t.startTrigger.type = START_TRIGGER_TYPE.START_TRIGGER_TYPE_GPI;
        assertArrayEquals(new long[] {2, 0x8001, 1, 0xFFFF_FFFFL}, fields(record(t), 0, 4, 8, 2, 10, 1, 12, 4));
        t.startTrigger.type = START_TRIGGER_TYPE.START_TRIGGER_TYPE_HANDHELD;
        assertArrayEquals(new long[] {3, 1, 500}, fields(record(t), 0, 4, 8, 4, 12, 4));
        t.startTrigger.type = START_TRIGGER_TYPE.START_TRIGGER_TYPE_TIMELAPSE;
        call = inventory(t);
        assertArrayEquals(new long[] {4, 3_600_000}, fields(call.blob("triggerInfo"), 0, 4, 16, 4));
        assertArrayEquals(new byte[] {23, 0, 0, 0, -1, -1}, call.blob("triggerInfo.startTrigger.startTime"));
        t.startTrigger.type = START_TRIGGER_TYPE.START_TRIGGER_TYPE_DISTANCE;
        assertArrayEquals(new long[] {5, 0xFFFF_FFFBL}, fields(record(t), 0, 4, 8, 4));
    }

    @Test
    void stopValuesSitAtTheirOffsets() {
        TRIGGER_INFO t = new TRIGGER_INFO();
        STOP_TRIGGER_VALUE v = t.stopTrigger.value;
        v.duration = -2;
        v.gpi = new GPI_TRIGGER();
        v.gpi.portNumber = 3;
        rawBoolean(v.gpi, "eventInfo", 0x80);
        v.gpi.timeoutMilliseconds = 0x1234_5678;
        v.tagObservation = withTimeout(0xFFFF, 700);
        v.numAttempts = withTimeout(4, 900);
        v.handheld = new HANDHELD_TRIGGER();
        v.handheld.timeoutMilliseconds = 250;
        v.timelapse = new TIMELAPSE_STOP_TRIGGER();
        v.timelapse.totalDuration = 60_000;
        v.timelapse.periodicDuration = 1_000;
        long[][] expected = {{1, 0xFFFF_FFFEL}, {2, 3, 1, 0x1234_5678L}, {3, 0xFFFF, 700}, {4, 4, 900},
            {5, 1, 250}, {6, 60_000, 1_000}};
        int[][] layout = {{24, 4, 28, 4}, {24, 4, 28, 2, 30, 1, 32, 4}, {24, 4, 28, 2, 32, 4}, {24, 4, 28, 2, 32, 4},
            {24, 4, 28, 4, 32, 4}, {24, 4, 28, 4, 32, 4}};
        for (int type = 1; type <= 6; type++) {
            t.stopTrigger.type = STOP_TRIGGER_TYPE.values()[type];
            assertArrayEquals(expected[type - 1], fields(record(t), layout[type - 1]), "stop type " + type);
        }
    }

    @Test
    void aDefaultTriggerHasZeroedTimeBlocksReportStorageAndExtraBlock() {
        Call call = inventory(new TRIGGER_INFO());
        long[] pointers = fields(call.blob("triggerInfo"), 8, 8, 16, 8);
        assertArrayEquals(new byte[6], SimControl.read(pointers[0], 6), "never freed, so still readable");
        assertArrayEquals(new byte[16], SimControl.read(pointers[1], 16));
        assertNull(call.blob("triggerInfo.tagEventReportInfo"), "no tag event reporting: NULL");
        assertArrayEquals(new byte[40], call.blob("triggerInfo.reportTriggers"), "no report triggers: zeroed storage");
        assertArrayEquals(new byte[256], call.blob("triggerInfo.extraTriggers"));

        TRIGGER_INFO noArrays = new TRIGGER_INFO();
        noArrays.extraTriggers.startTrigger = null;
        noArrays.extraTriggers.stopTrigger = null;
        assertArrayEquals(new byte[256], inventory(noArrays).blob("triggerInfo.extraTriggers"));
    }

    @Test
    void tagEventsAndReportTriggers() {
        TRIGGER_INFO t = new TRIGGER_INFO();
        t.tagEventReportInfo = new TAG_EVENT_REPORT_INFO();
        t.tagEventReportInfo.reportNewTagEvent = TAG_EVENT_REPORT_TRIGGER.MODERATED;
        t.tagEventReportInfo.newTagEventModeratedTimeoutMilliseconds = (short) 0x8001;
        t.tagEventReportInfo.reportTagInvisibleEvent = TAG_EVENT_REPORT_TRIGGER.IMMEDIATE;
        t.tagEventReportInfo.tagInvisibleEventModeratedTimeoutMilliseconds = 200;
        t.tagEventReportInfo.tagBackToVisibilityModeratedTimeoutMilliseconds = 300;
        t.tagEventReportInfo.reportTagMovingEvent = TAG_MOVING_EVENT_REPORT.TAG_MOVING_EVENT_ENABLE;
        t.tagEventReportInfo.tagStationaryModeratedTimeoutMilliseconds = -1;
        t.reportTriggers = new REPORT_TRIGGERS();
        t.reportTriggers.periodicReportDuration = -1;
        Call call = inventory(t);
        assertArrayEquals(new long[] {2, 0x8001, 1, 200, 0, 300, 1, 0xFFFF}, fields(
                call.blob("triggerInfo.tagEventReportInfo"), 0, 4, 4, 2, 8, 4, 12, 2, 16, 4, 20, 2, 24, 4, 28, 2));
        assertArrayEquals(new long[] {0xFFFF_FFFFL}, fields(call.blob("triggerInfo.reportTriggers"), 0, 4));
    }

    @Test
    void extraStartEntriesGetTimeRecordsOfTheirOwn() {
        TRIGGER_INFO t = new TRIGGER_INFO();
        START_TRIGGER[] starts = t.extraTriggers.startTrigger;
        starts[1] = new START_TRIGGER();
        starts[1].type = START_TRIGGER_TYPE.START_TRIGGER_TYPE_GPI;
        starts[1].value.gpi.portNumber = 2;
        rawBoolean(starts[1].value.gpi, "eventInfo", 2);
        starts[1].value.gpi.timeoutMilliseconds = 99;
        starts[3] = new START_TRIGGER();
        starts[3].type = START_TRIGGER_TYPE.START_TRIGGER_TYPE_PERIODIC;
        starts[3].value.periodic.periodMilliseconds = 1234;
        starts[3].value.periodic.startTime = time(2030);
        starts[5] = new START_TRIGGER();
        starts[5].type = START_TRIGGER_TYPE.START_TRIGGER_TYPE_TIMELAPSE;
        starts[5].value.timelapse.period = 4321;
        starts[5].value.timelapse.startTime.Minute = 8;

        Call call = inventory(t);
        byte[] x = call.blob("triggerInfo.extraTriggers");
        assertArrayEquals(new long[] {2, 2, 1, 99, 1, 1234, 4, 4321},
                fields(x, 24, 4, 32, 2, 34, 1, 36, 4, 72, 4, 80, 4, 120, 4, 136, 4));
        assertNotEquals(0L, Bytes.ptr(x, 88));
        assertNotEquals(0L, Bytes.ptr(x, 128));
        assertArrayEquals(timeBytes(2030), call.blob("triggerInfo.extraTriggers.start[3].startTime"));
        assertArrayEquals(new byte[] {0, 0, 8, 0, 0, 0}, call.blob("triggerInfo.extraTriggers.start[5].startTime"));
        assertArrayEquals(timeBytes(2030), SimControl.read(Bytes.ptr(x, 88), 16),
                "an entry's own time outlives the call");
        for (int[] zero : new int[][] {{0, 24}, {48, 72}, {96, 120}, {144, 256}}) {
            assertArrayEquals(new byte[zero[1] - zero[0]], Arrays.copyOfRange(x, zero[0], zero[1]), "unused entries");
        }
    }

    @Test
    void missingTypesAndStopVariantsLeaveTheirBytesAlone() {
        TRIGGER_INFO t = new TRIGGER_INFO();
        t.stopTrigger.type = STOP_TRIGGER_TYPE.STOP_TRIGGER_TYPE_GPI_WITH_TIMEOUT;
        assertEquals(2, fields(record(t), 24, 4)[0], "a stop variant that is null is not read");

        START_TRIGGER untypedStart = new START_TRIGGER();
        untypedStart.type = null;
        untypedStart.value.distance.value = 99;
        t.extraTriggers.startTrigger[0] = untypedStart;
        STOP_TRIGGER[] stops = t.extraTriggers.stopTrigger;
        STOP_TRIGGER_TYPE[] types = {STOP_TRIGGER_TYPE.STOP_TRIGGER_TYPE_GPI_WITH_TIMEOUT,
            STOP_TRIGGER_TYPE.STOP_TRIGGER_TYPE_HANDHELD_WITH_TIMEOUT, STOP_TRIGGER_TYPE.STOP_TRIGGER_TYPE_TIMELAPSE,
            STOP_TRIGGER_TYPE.STOP_TRIGGER_TYPE_N_ATTEMPTS_WITH_TIMEOUT, null};
        for (int i = 0; i < types.length; i++) {
            stops[i] = new STOP_TRIGGER();
            stops[i].type = types[i];
            stops[i].value.duration = 77;
        }
        byte[] x = inventory(t).blob("triggerInfo.extraTriggers");
        assertArrayEquals(new byte[168], Arrays.copyOf(x, 168), "an untyped start entry stays zero, value unread");
        assertArrayEquals(new long[] {2, 0, 5, 0, 6, 0, 4, 0, 0, 0},
                fields(x, 168, 4, 172, 8, 180, 4, 184, 8, 192, 4, 196, 8, 204, 4, 208, 8, 216, 4, 220, 8),
                "null variants keep only the type; a null type keeps 0 and its duration is not read");
    }

    @Test
    void extraTagObservationIsFilledOnlyAfterANumAttemptsObject() {
        TRIGGER_INFO t = new TRIGGER_INFO();
        STOP_TRIGGER[] stops = t.extraTriggers.stopTrigger;
        STOP_TRIGGER_TYPE[] types = {STOP_TRIGGER_TYPE.STOP_TRIGGER_TYPE_TAG_OBSERVATION_WITH_TIMEOUT,
            STOP_TRIGGER_TYPE.STOP_TRIGGER_TYPE_N_ATTEMPTS_WITH_TIMEOUT,
            STOP_TRIGGER_TYPE.STOP_TRIGGER_TYPE_TAG_OBSERVATION_WITH_TIMEOUT,
            STOP_TRIGGER_TYPE.STOP_TRIGGER_TYPE_N_ATTEMPTS_WITH_TIMEOUT,
            STOP_TRIGGER_TYPE.STOP_TRIGGER_TYPE_TAG_OBSERVATION_WITH_TIMEOUT, STOP_TRIGGER_TYPE.STOP_TRIGGER_TYPE_DURATION,
            STOP_TRIGGER_TYPE.STOP_TRIGGER_TYPE_TIMELAPSE};
        for (int i = 0; i < 7; i++) {
            stops[i] = new STOP_TRIGGER();
            stops[i].type = types[i];
            stops[i].value.tagObservation = withTimeout(10 + i, 100 * i);
        }
        stops[1].value.numAttempts = withTimeout(5, 600);
        stops[5].value.duration = 0x10000;
        stops[6].value.timelapse = new TIMELAPSE_STOP_TRIGGER();
        stops[6].value.timelapse.totalDuration = 1;
        stops[6].value.timelapse.periodicDuration = 2;

        byte[] x = inventory(t).blob("triggerInfo.extraTriggers");
        assertArrayEquals(new byte[168], Arrays.copyOf(x, 168));
        long[] entries = fields(x, 168, 4, 172, 2, 176, 4, 180, 4, 184, 2, 188, 4, 192, 4, 196, 2, 200, 4,
                204, 4, 208, 2, 212, 4, 216, 4, 220, 2, 224, 4, 228, 4, 232, 4, 240, 4, 244, 4, 248, 4, 252, 4);
        assertArrayEquals(new long[] {3, 0, 0, 4, 5, 600, 3, 12, 200, 4, 0, 0, 3, 0, 0, 1, 0x10000, 6, 1, 2, 0},
                entries, "observation filled only in slot 2, after slot 1's numAttempts object");
    }
}
