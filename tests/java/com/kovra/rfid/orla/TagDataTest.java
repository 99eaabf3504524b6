package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kovra.rfid.orla.sim.Bytes;
import com.kovra.rfid.orla.sim.SimControl;
import com.kovra.rfid.orla.sim.SimReader;
import java.util.Arrays;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.CsvSource;

/**
 * Tag records written into Java tag objects: records are composed at the
 * reader's offsets and handed to RFID_GetReadTag as the simulator's output.
 */
class TagDataTest extends NativeTest {

    /** Reads one record through a tag record that Java holds; returns the status. */
    private static int readTag(int handle, TAG_DATA tag, byte[] record, boolean utcTime) {
        long address = ORLANatives.RFID_AllocateTag(handle);
        SimControl.setOutput("RFID_GetReadTag", record);
        int status = ORLANatives.RFID_GetReadTag(handle, tag, address, utcTime);
        assertEquals(0, ORLANatives.RFID_DeallocateTag(handle, address));
        assertEquals(address, SimControl.args("RFID_GetReadTag", -1)[1]);
        return status;
    }

    @Test
    void calendarRecordFillsEveryFieldWithItsSignAndWidth() {
        TAG_DATA tag = markedTag();
        byte[] epc = {0x30, 0x00, 0x12, 0x34, 0x56, 0x78, (byte) 0x9A, (byte) 0xBC, (byte) 0xDE, (byte) 0xF0, 0x11, 0x22};
        assertEquals(0, readTag(connect(), tag, fullRecord(epc).build(), true));

        assertEquals("3000123456789ABCDEF01122", tag.tagID);
        assertEquals("AB0CDE", tag.memoryBankData);
        assertArrayEquals(new int[] {0x8000_0001, 192, 12, 64, 0xFFFF, -2, 0x8001, -1, 3, 8, 0, 7, 3, 2},
                new int[] {tag.structInfo.memoryAllocated, tag.structInfo.memoryUsed, tag.tagIDLength,
                    tag.tagIDAllocated, tag.PC, tag.XPC, tag.CRC, tag.memoryBankDataByteOffset,
                    tag.memoryBankDataLength, tag.memoryBankDataAllocated, tag.enumOPCode, tag.enumOPStatus,
                    tag.enumMemoryBank, tag.enumTagEvent}, "PC and CRC widen without sign");
        assertArrayEquals(new short[] {-2, -60, -32768, -32768, -300},
                new short[] {tag.antennaID, tag.peakRSSI, tag.channelIndex, tag.tagSeenCount, tag.phaseInfo},
                "the RSSI byte 0xC4 and the 16-bit fields are signed");
        assertArrayEquals(sequence(0x7FFE), members(tag.seenTime.utcTime.firstSeenTimeStamp));
        assertArrayEquals(sequence(2024), members(tag.seenTime.utcTime.lastSeenTimeStamp));
        assertArrayEquals(sequence(0xFFF0), members(tag.tagEventTimeStamp));

        assertEquals(77, tag.seenTime.upTime.firstSeenTimeStamp, "the up-time form is left alone");
        assertEquals("kept", tag.AccessOperationResult.value.authenticateReadBufferResult, "no result record");
        assertEquals(77, tag.gpsLocation.longitude, "no GPS record");
        assertFalse(tag.isContainLocationInfo, "an earlier tag's location flag is cleared");
        assertEquals(77, tag.location.relativeDistance);
    }

    @Test
    void upTimeRecordFillsTheCountsAndEmptyTexts() {
        TAG_DATA tag = markedTag();
        byte[] record = fullRecord(new byte[0]).s64(40, 0x0123_4567_89AB_CDEFL).s64(48, -2).u32(108, 0).build();
        assertEquals(0, readTag(connect(), tag, record, false));

        assertEquals(0x0123_4567_89AB_CDEFL, tag.seenTime.upTime.firstSeenTimeStamp);
        assertEquals(-2, tag.seenTime.upTime.lastSeenTimeStamp);
        assertEquals(77, tag.seenTime.utcTime.firstSeenTimeStamp.Year, "the calendar form is left alone");
        assertEquals("", tag.tagID);
        assertEquals("", tag.memoryBankData);
    }

    /** Result record: a word at 0 (QT or config word, or a bit length), a reply A1 B2 C3 behind 8. */
    @ParameterizedTest
    @CsvSource({"21, 32769, -32767, 77, kept", "22, 32769, 77, -32767, kept", "23, 20, 77, 77, A1B2",
        "24, 24, 77, 77, A1B2C3", "26, 5, 77, 77, ''", "23, 0, 77, 77, kept", "25, 20, 77, 77, kept",
        "0, 20, 77, 77, kept"})
    void accessOperationResultFollowsTheOperationCode(int opCode, int word, short qt, short config, String text) {
        long reply = SimControl.alloc(new byte[] {(byte) 0xA1, (byte) 0xB2, (byte) 0xC3});
        byte[] result = new Bytes.Builder(16).u16(0, word).ptr(8, reply).build();
        TAG_DATA tag = markedTag();
        byte[] record = fullRecord(new byte[1]).u32(80, opCode).ptr(144, SimControl.alloc(result)).build();
        assertEquals(0, readTag(connect(), tag, record, true));

        assertEquals(qt, tag.AccessOperationResult.value.qtData.qtControlData);
        assertEquals(config, tag.AccessOperationResult.value.nxpChangeConfigWordResult.ChangeConfigWord);
        assertEquals(text, tag.AccessOperationResult.value.authenticateReadBufferResult);
    }

    @Test
    void locationAndGpsAreCopiedWhenPresentAndNothingOnFailure() {
        int handle = connect();
        long location = SimControl.alloc(new Bytes.Builder(8).u16(0, 0xFFFB).build());
        long gps = SimControl.alloc(new Bytes.Builder(12).s32(0, -122).s32(4, 47).s32(8, 0x8000_0000).build());
        byte[] record = fullRecord(new byte[1]).ptr(136, location).ptr(184, gps).build();
        TAG_DATA tag = new TAG_DATA();
        assertEquals(0, readTag(handle, tag, record, true));
        assertTrue(tag.isContainLocationInfo);
        assertEquals(-5, tag.location.relativeDistance);
        assertArrayEquals(new int[] {-122, 47, Integer.MIN_VALUE},
                new int[] {tag.gpsLocation.longitude, tag.gpsLocation.latitude, tag.gpsLocation.altitude});

        SimControl.setStatus("RFID_GetReadTag", 3);
        TAG_DATA untouched = markedTag();
        assertEquals(3, readTag(handle, untouched, record, true));
        assertNull(untouched.tagID);
        assertEquals(0, untouched.peakRSSI);
        assertEquals(77, untouched.gpsLocation.longitude);
        assertEquals(77, untouched.seenTime.utcTime.firstSeenTimeStamp.Year);
    }

    /** The bytes 0, 1, 2, ... (mod 256), count of them. */
    private static byte[] counting(int count) {
        byte[] b = new byte[count];
        for (int i = 0; i < count; i++) {
            b[i] = (byte) i;
        }
        return b;
    }

    @Test
    void renderingsOfTheLongestDataFitWhole() {
        byte[] longest = counting(2047);
        long reply = SimControl.alloc(longest);
        byte[] result = new Bytes.Builder(16).u16(0, 2047 * 8 + 7).ptr(8, reply).build();
        byte[] record = fullRecord(longest).ptr(96, SimControl.alloc(longest)).u32(108, 2047)
                .u32(80, 24).ptr(144, SimControl.alloc(result)).build();
        TAG_DATA tag = new TAG_DATA();
        assertEquals(0, readTag(connect(), tag, record, true));

        String text = Bytes.hex(longest);
        String[] rendered = {tag.tagID, tag.memoryBankData,
            tag.AccessOperationResult.value.authenticateReadBufferResult};
        assertArrayEquals(new int[] {4094, 4094, 4094}, Arrays.stream(rendered).mapToInt(String::length).toArray(),
                "identifier, bank data and reply (16,383 bits: whole bytes only)");
        assertArrayEquals(new String[] {text, text, text}, rendered);
    }

    @Test
    void absentOptionalRecordsLeaveTheirJavaObjectsUnread() {
        TAG_DATA tag = new TAG_DATA();
        tag.AccessOperationResult = null;
        tag.gpsLocation = null;
        tag.location = null;
        tag.isContainLocationInfo = true;
        // Fetching the fields of any of the three null objects would stop the virtual machine.
        assertEquals(0, readTag(connect(), tag, fullRecord(new byte[1]).u32(80, 21).build(), true));
        assertFalse(tag.isContainLocationInfo, "the conversion ran to its end");
    }

    @Test
    void heldRecordsAreObtainedAndGivenBackWithTheirStatus() {
        int handle = connect();
        long address = ORLANatives.RFID_AllocateTag(handle);
        assertEquals(1, SimReader.liveTagRecords(handle));
        SimControl.queueStatus("RFID_DeallocateTag", 42);
        assertEquals(42, ORLANatives.RFID_DeallocateTag(handle, address));
        assertEquals(0, ORLANatives.RFID_DeallocateTag(handle, address));
        assertArrayEquals(new long[] {handle, address}, SimControl.args("RFID_DeallocateTag", -1));
        assertEquals(0, SimReader.liveTagRecords(handle));

        ORLANatives.RFID_AllocateTag(0x8000_0000);
        assertEquals(0xFFFF_FFFF_8000_0000L, SimControl.args("RFID_AllocateTag", -1)[0], "sign-extended handle");
    }
}
