package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotEquals;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kovra.rfid.orla.sim.SimReader;
import java.util.ArrayList;
import java.util.HashSet;
import java.util.LinkedHashMap;
import java.util.List;
import java.util.Map;
import java.util.Set;
import java.util.function.IntSupplier;
import org.junit.jupiter.api.BeforeEach;
import org.junit.jupiter.api.Test;

/**
 * The simulated reader's living field as a Java application sees it through ORLANatives: tag event
 * reports of tags that come, go and move; report triggers; calls checked against the reader's
 * capabilities; every tag of a large population read in turn; a seed that replays a run. Every run is in
 * fast mode with a fixed number of rounds, so nothing depends on the clock.
 */
class FieldTest extends NativeTest {

    private static final int WAIT_OBJECT_0 = 0;
    private static final int WAIT_TIMEOUT = 258;
    private static final int PARAM_ERROR = RFID_STATUS.RFID_API_PARAM_ERROR.ordinal();
    private static final int BATCH = 8;

    private int reader;

    @BeforeEach
    void fastSeededReader() {
        SimReader.fastMode(true);
        reader = connect();
        SimReader.seed(reader, 1234);
    }

    private static String epc(int n) {
        return String.format("3000000000000000000000%02X", n);
    }

    private static String tags(int count, String extra) {
        StringBuilder text = new StringBuilder();
        for (int n = 1; n <= count; n++) {
            text.append("EPC=").append(epc(n)).append(' ').append(extra).append('\n');
        }
        return text.toString();
    }

    private static TRIGGER_INFO rounds(int n) {
        TRIGGER_INFO trigger = new TRIGGER_INFO();
        trigger.stopTrigger.type = STOP_TRIGGER_TYPE.STOP_TRIGGER_TYPE_N_ATTEMPTS_WITH_TIMEOUT;
        trigger.stopTrigger.value.numAttempts = new TRIGGER_WITH_TIMEOUT();
        trigger.stopTrigger.value.numAttempts.n = (short) n;
        return trigger;
    }

    /** Runs an inventory until its stop trigger ends it; returns the read event's state. */
    private int inventory(ANTENNA_INFO antennas, TRIGGER_INFO trigger) {
        int readEvent = (int) ORLANatives.rfidUtils_CreateEvent(0, 1, 0);
        int stopEvent = (int) ORLANatives.rfidUtils_CreateEvent(0, 1, 0);
        assertEquals(0, ORLANatives.RFID_RegisterEventNotification(reader, RFID_EVENT_TYPE.TAG_READ_EVENT, readEvent));
        assertEquals(0, ORLANatives.RFID_RegisterEventNotification(reader, RFID_EVENT_TYPE.INVENTORY_STOP_EVENT,
                stopEvent));
        assertEquals(0, ORLANatives.RFID_PerformInventory(reader, null, antennas, trigger));
        assertEquals(WAIT_OBJECT_0, ORLANatives.rfidUtils_WaitForSingleObject(stopEvent, 10_000));
        assertEquals(0, ORLANatives.RFID_StopInventory(reader));
        int read = ORLANatives.rfidUtils_WaitForSingleObject(readEvent, 0);
        ORLANatives.rfidUtils_CloseHandle(readEvent);
        ORLANatives.rfidUtils_CloseHandle(stopEvent);
        return read;
    }

    /** Every buffered tag record, as "EPC@antenna rssi seen channel phase event". */
    private List<String> fetchAll() {
        TAG_DATA[] batch = new TAG_DATA[BATCH];
        for (int i = 0; i < BATCH; i++) {
            batch[i] = new TAG_DATA();
        }
        List<String> records = new ArrayList<>();
        int[] count = {0};
        do {
            assertEquals(0, ORLANatives.rfid_GetReadTags(reader, BATCH, batch, count, true));
            for (int i = 0; i < count[0]; i++) {
                TAG_DATA t = batch[i];
                records.add(t.tagID + "@" + t.antennaID + " " + t.peakRSSI + " " + t.tagSeenCount + " "
                        + t.channelIndex + " " + t.phaseInfo + " " + t.enumTagEvent);
            }
        } while (count[0] == BATCH);
        return records;
    }

    @Test
    void tagEventsFollowTagsThatArriveLeaveComeBackAndMove() {
        assertNull(SimReader.loadTags(tags(4, "ANT=1,2 RSSI=-50")));
        // Tag 1 stays; 2 comes at 100 ms and leaves at 400; 3 moves to antenna 2 at 300; 4 comes every 600.
        assertNull(SimReader.loadScenario(String.join("\n",
                "EPC=" + epc(2) + " AT=100-400 ANT=1",
                "EPC=" + epc(3) + " AT=0-300 ANT=1",
                "EPC=" + epc(3) + " AT=300-2000 ANT=2",
                "EPC=" + epc(4) + " AT=0-200 EVERY=600 ANT=1")));
        SimReader.readRate(0);
        TRIGGER_INFO trigger = rounds(40);  // 1 s of field time
        trigger.tagEventReportInfo = new TAG_EVENT_REPORT_INFO();
        trigger.tagEventReportInfo.reportNewTagEvent = TAG_EVENT_REPORT_TRIGGER.IMMEDIATE;
        trigger.tagEventReportInfo.reportTagInvisibleEvent = TAG_EVENT_REPORT_TRIGGER.MODERATED;
        trigger.tagEventReportInfo.tagInvisibleEventModeratedTimeoutMilliseconds = 100;
        trigger.tagEventReportInfo.reportTagBackToVisibilityEvent = TAG_EVENT_REPORT_TRIGGER.IMMEDIATE;
        trigger.tagEventReportInfo.reportTagMovingEvent = TAG_MOVING_EVENT_REPORT.TAG_MOVING_EVENT_ENABLE;
        trigger.tagEventReportInfo.tagStationaryModeratedTimeoutMilliseconds = 200;
        inventory(new ANTENNA_INFO(new short[] {1, 2}), trigger);

        Map<String, List<String>> events = new LinkedHashMap<>();
        for (String record : fetchAll()) {
            String[] f = record.split(" ");
            events.computeIfAbsent(f[0].substring(0, 24), k -> new ArrayList<>()).add(f[0].substring(24) + ":" + f[5]);
        }
        // 1 new, 2 not visible, 3 back to visibility, 4 moving, 5 stationary
        Map<String, List<String>> expected = Map.of(
                epc(1), List.of("@1:1"),
                epc(2), List.of("@1:1", "@1:2"),
                epc(3), List.of("@1:1", "@2:4", "@2:5"),
                epc(4), List.of("@1:1", "@1:2", "@1:3", "@1:2"));
        assertEquals(expected, events);
    }

    @Test
    void reportTriggersDecideWhenTheReadEventIsSet() {
        assertNull(SimReader.loadTags(tags(4, "ANT=1")));
        record Row(int everyNTags, int periodMs, int readEvent) {}
        // Ten rounds of four tags: 40 records over 250 ms of field time.
        List<Row> rows = List.of(
                new Row(0, 0, WAIT_OBJECT_0),
                new Row(40, 0, WAIT_OBJECT_0),
                new Row(41, 0, WAIT_TIMEOUT),
                new Row(0, 100, WAIT_OBJECT_0),
                new Row(0, 10_000, WAIT_TIMEOUT));
        for (Row row : rows) {
            TRIGGER_INFO trigger = rounds(10);
            trigger.tagReportTrigger = row.everyNTags;
            trigger.reportTriggers = new REPORT_TRIGGERS();
            trigger.reportTriggers.periodicReportDuration = row.periodMs;
            assertEquals(row.readEvent, inventory(null, trigger), row.toString());
            assertEquals(40, fetchAll().stream().mapToInt(r -> Integer.parseInt(r.split(" ")[2])).sum(), row.toString());
        }
    }

    @Test
    void callsBeyondTheReadersCapabilitiesFailAndSayWhy() {
        SimReader.checkCapabilities(true);
        ANTENNA_RF_CONFIG badFrequency = new ANTENNA_RF_CONFIG();
        badFrequency.transmitFrequencyIndex = 4;
        ANTENNA_RF_CONFIG badMode = new ANTENNA_RF_CONFIG();
        badMode.rfModeTableIndex = 2;
        record Row(String fn, IntSupplier call, String because) {}
        List<Row> rows = List.of(
                new Row("RFID_PerformInventory", () -> ORLANatives.RFID_PerformInventory(reader, null,
                        new ANTENNA_INFO(new short[] {1, 9}), rounds(1)), "antenna 9 does not exist"),
                new Row("RFID_PerformTagLocationing", () -> ORLANatives.RFID_PerformTagLocationing(reader,
                        epc(1), 12, new ANTENNA_INFO(new short[] {5})), "antenna 5 does not exist"),
                new Row("RFID_PerformNXPEASScan", () -> ORLANatives.RFID_PerformNXPEASScan(reader,
                        new ANTENNA_INFO(new short[] {0}), rounds(1)), "antenna 0 does not exist"),
                new Row("RFID_Read", () -> ORLANatives.RFID_Read(reader, epc(1), 12, null, null,
                        new ANTENNA_INFO(new short[] {7}), new TAG_DATA(), null, null, true), "antenna 7 does not exist"),
                new Row("RFID_SetAntennaConfig", () -> ORLANatives.RFID_SetAntennaConfig(reader, (short) 1,
                        (short) 3, (short) 0, (short) 0), "receive sensitivity index 3"),
                new Row("RFID_SetAntennaConfig", () -> ORLANatives.RFID_SetAntennaConfig(reader, (short) 1,
                        (short) 0, (short) 21, (short) 0), "transmit power index 21"),
                new Row("RFID_SetAntennaConfig", () -> ORLANatives.RFID_SetAntennaConfig(reader, (short) 5,
                        (short) 0, (short) 0, (short) 0), "antenna 5 does not exist"),
                new Row("RFID_SetAntennaRfConfig", () -> ORLANatives.RFID_SetAntennaRfConfig(reader, (short) 2,
                        badFrequency), "transmit frequency index 4"),
                new Row("RFID_SetAntennaRfConfig", () -> ORLANatives.RFID_SetAntennaRfConfig(reader, (short) 2,
                        badMode), "RF mode index 2"),
                new Row("RFID_SetRFMode", () -> ORLANatives.RFID_SetRFMode(reader, (short) 1, 2, 0), "RF mode index 2"),
                new Row("RFID_GetReaderStats", () -> ORLANatives.RFID_GetReaderStats(reader, (short) 9,
                        new READER_STATS()), "antenna 9 does not exist"),
                new Row("RFID_SetAntennaConfig", () -> ORLANatives.RFID_SetAntennaConfig(reader, (short) 4,
                        (short) 2, (short) 20, (short) 3), null),
                new Row("RFID_SetRFMode", () -> ORLANatives.RFID_SetRFMode(reader, (short) 4, 1, 0), null));
        for (Row row : rows) {
            int status = row.call.getAsInt();
            if (row.because == null) {
                assertEquals(0, status, row.fn + " within the reader's tables");
                continue;
            }
            assertEquals(PARAM_ERROR, status, row.fn + ": " + row.because);
            ERROR_INFO error = new ERROR_INFO();
            assertEquals(0, ORLANatives.RFID_GetLastErrorInfo(reader, error));
            assertEquals(PARAM_ERROR, error.enumRfidStatusCode);
            assertTrue(error.vendorMessage.startsWith(row.fn + ": ") && error.vendorMessage.contains(row.because),
                    error.vendorMessage);
        }
        assertEquals(5, ORLANatives.RFID_StopInventory(reader), "the refused inventory never started");

        SimReader.checkCapabilities(false);
        assertEquals(0, ORLANatives.RFID_SetAntennaConfig(reader, (short) 9, (short) 99, (short) 99, (short) 99),
                "a lenient reader passes any value through");
    }

    @Test
    void everyTagOfFiftyThousandIsReadInTurn() {
        int population = 50_000;
        StringBuilder text = new StringBuilder();
        for (int n = 0; n < population; n++) {
            text.append(String.format("EPC=30%022X%n", n));
        }
        assertNull(SimReader.loadTags(text.toString()));
        SimReader.readRate(100_000);  // 2,500 reads a round, fewer than the 4,096 the buffer holds
        Set<String> seen = new HashSet<>();
        int runs = 0;
        while (seen.size() < population && runs < 25) {
            inventory(null, rounds(1));
            for (String record : fetchAll()) {
                seen.add(record.substring(0, record.indexOf('@')));
            }
            runs++;
        }
        assertEquals(population, seen.size(), "every tag reported");
        assertEquals(20, runs, "one round for each 2,500 tags, none read twice before all were read once");
    }

    @Test
    void aSeedReplaysTheSameReads() {
        assertNull(SimReader.loadTags(tags(20, "ANT=1,3 RSSI=-88,-80")));  // weak: each answers by chance
        List<List<String>> runs = new ArrayList<>();
        for (long seed : new long[] {7, 7, 8}) {
            SimReader.seed(reader, seed);
            inventory(null, rounds(8));
            runs.add(fetchAll());
        }
        assertTrue(runs.get(0).size() > 0 && runs.get(0).size() < 2 * 20, "some tags answer, not all: " + runs.get(0));
        assertEquals(runs.get(0), runs.get(1), "same seed, same RSSI, channels, phases and counts");
        assertNotEquals(runs.get(0), runs.get(2));
    }

    @Test
    void antennaAndTemperatureChangesRaiseTheirEvents() {
        record Row(Runnable change, RFID_EVENT_TYPE type, String data) {}
        List<Row> rows = List.of(
                new Row(() -> SimReader.connectAntenna(reader, 3, false), RFID_EVENT_TYPE.ANTENNA_EVENT, "3 0"),
                new Row(() -> SimReader.connectAntenna(reader, 3, true), RFID_EVENT_TYPE.ANTENNA_EVENT, "3 1"),
                new Row(() -> SimReader.setTemperature(reader, 64), RFID_EVENT_TYPE.TEMPERATURE_ALARM_EVENT, "64 1"),
                new Row(() -> SimReader.setTemperature(reader, 75), RFID_EVENT_TYPE.TEMPERATURE_ALARM_EVENT, "75 2"),
                new Row(() -> SimReader.setTemperature(reader, 40), RFID_EVENT_TYPE.TEMPERATURE_ALARM_EVENT, "40 0"));
        for (Row row : rows) {
            int event = (int) ORLANatives.rfidUtils_CreateEvent(0, 1, 0);
            assertEquals(0, ORLANatives.RFID_RegisterEventNotification(reader, row.type, event));
            row.change.run();
            assertEquals(WAIT_OBJECT_0, ORLANatives.rfidUtils_WaitForSingleObject(event, 0), row.data);
            EVENT_DATA data = new EVENT_DATA();
            assertEquals(0, ORLANatives.RFID_GetEventData(reader, row.type, data));
            String got = row.type == RFID_EVENT_TYPE.ANTENNA_EVENT ? data.antennaID + " " + data.enumAntennaEvent
                    : data.currentTemperature + " " + data.enumAlarmLevel;
            assertEquals(row.data, got);
            ORLANatives.rfidUtils_CloseHandle(event);
        }

        assertNull(SimReader.loadTags(tags(2, "ANT=3")));
        SimReader.connectAntenna(reader, 3, false);
        inventory(null, rounds(3));
        assertEquals(List.of(), fetchAll(), "a disconnected antenna reads nothing");
    }
}
