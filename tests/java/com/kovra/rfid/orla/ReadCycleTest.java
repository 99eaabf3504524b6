package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kovra.rfid.orla.sim.SimReader;
import java.util.Set;
import java.util.TreeSet;
import org.junit.jupiter.api.Test;

/**
 * One whole read cycle against the simulated reader and its built-in tags:
 * connect, register for the read and stop events, run an inventory on
 * antennas 2 and 4 under a duration stop trigger and a post filter, wait
 * for it to stop, and fetch the tags in small batches.
 */
class ReadCycleTest extends NativeTest {

    private static final int BATCH = 2;

    /** EPC bank pattern: the 32 bits of the EPC prefix 300833B2, after CRC and PC. */
    private static POST_FILTER prefixAndStrongSignal() {
        TAG_PATTERN prefix = new TAG_PATTERN();
        prefix.memoryBank = MEMORY_BANK.MEMORY_BANK_EPC;
        prefix.bitOffset = 32;
        prefix.tagPattern = new byte[] {0x30, 0x08, 0x33, (byte) 0xB2};
        prefix.tagPatternBitCount = 32;
        POST_FILTER filter = new POST_FILTER();
        filter.tagPatternA = prefix;
        filter.matchPattern = FILTER_MATCH_PATTERN.A;
        filter.rssiRangeFilter = new RSSI_RANGE_FILTER();
        filter.rssiRangeFilter.peakRSSILowerLimit = -55;
        filter.rssiRangeFilter.matchRange = MATCH_RANGE.GREATER_THAN_LOWER_LIMIT;
        return filter;
    }

    private static TRIGGER_INFO runFor(int milliseconds) {
        TRIGGER_INFO trigger = new TRIGGER_INFO();
        trigger.stopTrigger.type = STOP_TRIGGER_TYPE.STOP_TRIGGER_TYPE_DURATION;
        trigger.stopTrigger.value.duration = milliseconds;
        return trigger;
    }

    @Test
    void inventoryReportsExactlyTheFilteredTagsOfTheSelectedAntennas() {
        assertNull(SimReader.loadScenario(""), "every built-in tag stays in its field");
        int reader = connect();
        int readEvent = (int) ORLANatives.rfidUtils_CreateEvent(0, 1, 0);
        int stopEvent = (int) ORLANatives.rfidUtils_CreateEvent(0, 1, 0);
        assertEquals(0, ORLANatives.RFID_RegisterEventNotification(reader, RFID_EVENT_TYPE.TAG_READ_EVENT, readEvent));
        assertEquals(0,
                ORLANatives.RFID_RegisterEventNotification(reader, RFID_EVENT_TYPE.INVENTORY_STOP_EVENT, stopEvent));

        assertEquals(0, ORLANatives.RFID_PerformInventory(reader, prefixAndStrongSignal(),
                new ANTENNA_INFO(new short[] {2, 4}), runFor(200)));
        assertEquals(0, ORLANatives.rfidUtils_WaitForSingleObject(stopEvent, 5000), "the inventory stops");
        assertEquals(0, ORLANatives.rfidUtils_WaitForSingleObject(readEvent, 0), "tags were read");

        Set<String> seen = new TreeSet<>();
        TAG_DATA[] batch = {new TAG_DATA(), new TAG_DATA()};
        int[] count = {-1};
        do {
            assertEquals(0, ORLANatives.rfid_GetReadTags(reader, BATCH, batch, count, true));
            assertTrue(count[0] >= 0 && count[0] <= BATCH);
            for (int i = 0; i < count[0]; i++) {
                TAG_DATA tag = batch[i];
                assertEquals(12, tag.tagIDLength);
                assertTrue(tag.peakRSSI > -55, tag + " passed the RSSI range");
                assertTrue(tag.tagSeenCount >= 1);
                assertTrue(seen.add(tag.tagID + "@" + tag.antennaID), tag + " reported once");
            }
        } while (count[0] > 0);

        // Tags 0A (-36 and -50 dBm), 0E (-39), 14 (-37 on antenna 4; -64 on 2 is too weak) and 16 (-45);
        // the other 300833B2 tags on antennas 2 and 4 are below -55 dBm, the rest have another prefix or
        // are on antennas 1 and 3.
        assertEquals(Set.of("300833B2DDD901400000000A@2", "300833B2DDD901400000000A@4",
                "300833B2DDD901400000000E@2", "300833B2DDD9014000000014@4", "300833B2DDD9014000000016@2"), seen);
        assertEquals(0, SimReader.liveTagRecords(reader));
        assertEquals(0, SimReader.bufferedReads(reader));
        assertEquals(0, ORLANatives.RFID_DisConnect(reader));
    }
}
