package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNull;

import com.kovra.rfid.orla.sim.SimControl;
import com.kovra.rfid.orla.sim.SimReader;
import java.io.ByteArrayOutputStream;
import org.junit.jupiter.api.Test;

/** Batches of read tags: the count, the objects filled, the records given back and the status returned. */
class TagRetrievalTest extends NativeTest {

    /** count records, the i-th with the one-byte tag ID 0xA0 + i and up-time count 1000 + i. */
    private static byte[] records(int count) {
        ByteArrayOutputStream all = new ByteArrayOutputStream();
        for (int i = 0; i < count; i++) {
            all.writeBytes(fullRecord(new byte[] {(byte) (0xA0 + i)}).s64(40, 1000 + i).build());
        }
        return all.toByteArray();
    }

    private static TAG_DATA[] tags(int n) {
        TAG_DATA[] tags = new TAG_DATA[n];
        for (int i = 0; i < n; i++) {
            tags[i] = new TAG_DATA();
        }
        return tags;
    }

    @Test
    void batchFillsTheReadTagsOnlyAndGivesEveryRecordBack() {
        int handle = connect();
        SimControl.setOutput("rfid_GetReadTags", records(3));
        TAG_DATA[] tags = tags(10);
        int[] count = {-1};
        assertEquals(0, ORLANatives.rfid_GetReadTags(handle, 10, tags, count, false));

        assertEquals(3, count[0]);
        for (int i = 0; i < 10; i++) {
            assertEquals(i < 3 ? String.format("%02X", 0xA0 + i) : null, tags[i].tagID, "object " + i);
            assertEquals(i < 3 ? 1000 + i : 0, tags[i].seenTime.upTime.firstSeenTimeStamp, "object " + i);
        }
        long[] fetch = SimControl.args("rfid_GetReadTags", -1);
        assertEquals(handle, fetch[0]);
        assertEquals(10, fetch[1]);
        assertArrayEquals(new long[] {handle, fetch[2], 3}, SimControl.args("rfid_DeallocateTags", -1));
        assertEquals(0, SimReader.liveTagRecords(handle));
    }

    @Test
    void maximumOfZeroOrLessReachesTheReaderAsItStands() {
        int handle = connect();
        int[] count = {-7};
        assertEquals(0, ORLANatives.rfid_GetReadTags(handle, -1, new TAG_DATA[0], count, true));
        assertEquals(0xFFFF_FFFFL, SimControl.args("rfid_GetReadTags", -1)[1], "the maximum as unsigned 32 bits");
        assertEquals(0, count[0], "nothing buffered: an empty batch");
        assertEquals(0, SimControl.args("rfid_DeallocateTags", -1)[2]);
    }

    @Test
    void resultIsTheReleaseStatusNotTheFetchStatus() {
        int handle = connect();
        SimControl.setOutput("rfid_GetReadTags", records(2));
        SimControl.queueStatus("rfid_GetReadTags", 3);
        TAG_DATA[] tags = tags(4);
        int[] count = {-7};
        assertEquals(0, ORLANatives.rfid_GetReadTags(handle, 4, tags, count, true), "failed fetch, good release");
        assertEquals(-7, count[0]);
        assertNull(tags[0].tagID);
        assertEquals(2, SimControl.args("rfid_DeallocateTags", -1)[2], "what the library handed out goes back");
        assertEquals(0, SimReader.liveTagRecords(handle));

        SimControl.queueStatus("rfid_DeallocateTags", 9);
        assertEquals(9, ORLANatives.rfid_GetReadTags(handle, 4, tags, count, true), "good fetch, failed release");
        assertEquals(2, count[0]);
        assertEquals("A1", tags[1].tagID);
    }
}
