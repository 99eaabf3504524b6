package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNull;

import com.kovra.rfid.orla.sim.SimControl;
import com.kovra.rfid.orla.sim.SimReader;
import java.io.ByteArrayOutputStream;
import org.junit.jupiter.api.Test;

/** Batches of read tags: counts, the objects filled, the records given back and the status returned. */
class TagRetrievalTest extends NativeTest {

    /** count records, the i-th with the one-byte tag ID 0xA0 + i and up-time counts 1000 + i. */
    private static byte[] records(int count) {
        ByteArrayOutputStream all = new ByteArrayOutputStream();
        for (int i = 0; i < count; i++) {
            all.writeBytes(TagDataTest.fullRecord(new byte[] {(byte) (0xA0 + i)}).s64(40, 1000 + i).build());
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
        int handle = TagDataTest.connect();
        SimControl.setOutput("rfid_GetReadTags", records(3));
        TAG_DATA[] tags = tags(10);
        int[] count = {-1};

        assertEquals(0, ORLANatives.rfid_GetReadTags(handle, 10, tags, count, false));

        assertEquals(3, count[0]);
        for (int i = 0; i < 3; i++) {
            assertEquals(String.format("%02X", 0xA0 + i), tags[i].tagID);
            assertEquals(1000 + i, tags[i].seenTime.upTime.firstSeenTimeStamp, "the UTC flag picks the form");
        }
        for (int i = 3; i < 10; i++) {
            assertNull(tags[i].tagID, "object " + i + " is not touched");
        }
        long[] fetch = SimControl.args("rfid_GetReadTags", -1);
        assertEquals(handle, fetch[0]);
        assertEquals(10, fetch[1]);
        long[] release = SimControl.args("rfid_DeallocateTags", -1);
        assertEquals(handle, release[0]);
        assertEquals(fetch[2], release[1], "the same pointer array is given back");
        assertEquals(3, release[2]);
        assertEquals(0, SimReader.liveTagRecords(handle));
    }

    @Test
    void failedFetchKeepsTheCountAndReturnsTheReleaseStatus() {
        int handle = TagDataTest.connect();
        SimControl.setOutput("rfid_GetReadTags", records(2));
        SimControl.setStatus("rfid_GetReadTags", 3);
        TAG_DATA[] tags = tags(4);
        int[] count = {-7};

        assertEquals(0, ORLANatives.rfid_GetReadTags(handle, 4, tags, count, true));

        assertEquals(-7, count[0]);
        assertNull(tags[0].tagID);
        assertEquals(2, SimControl.args("rfid_DeallocateTags", -1)[2], "what the library handed out goes back");
        assertEquals(0, SimReader.liveTagRecords(handle));
    }

    @Test
    void releaseStatusIsTheResultEvenAfterASuccessfulFetch() {
        int handle = TagDataTest.connect();
        SimControl.setOutput("rfid_GetReadTags", records(1));
        SimControl.setStatus("rfid_DeallocateTags", 9);
        TAG_DATA[] tags = tags(1);
        int[] count = {0};

        assertEquals(9, ORLANatives.rfid_GetReadTags(handle, 1, tags, count, true));
        assertEquals(1, count[0]);
        assertEquals("A0", tags[0].tagID);
    }

    @Test
    void emptyBufferGivesACountOfZero() {
        int handle = TagDataTest.connect();
        int[] count = {5};
        assertEquals(0, ORLANatives.rfid_GetReadTags(handle, 8, tags(8), count, true));
        assertEquals(0, count[0]);
        assertEquals(0, SimControl.args("rfid_DeallocateTags", -1)[2]);
    }
}
