package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertFalse;
import static org.junit.jupiter.api.Assertions.assertNotEquals;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kovra.rfid.orla.sim.Bytes;
import com.kovra.rfid.orla.sim.SimControl;
import com.kovra.rfid.orla.sim.SimReader;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.ValueSource;

/**
 * A tag record of the reader written into a Java tag object: records are
 * composed byte by byte at the reader's offsets and handed to
 * RFID_GetReadTag as the simulator's scripted output.
 */
class TagDataTest extends NativeTest {

    static final int RECORD_SIZE = 192;
    static final byte[] EPC = {0x30, 0x00, 0x12, 0x34, 0x56, 0x78, (byte) 0x9A, (byte) 0xBC, (byte) 0xDE,
        (byte) 0xF0, 0x11, 0x22};

    static int connect() {
        long[] handle = {0};
        assertEquals(0, ORLANatives.RFID_Connect(handle, "sim", 0, 0, new CONNECTION_INFO()));
        return (int) handle[0];
    }

    /** A calendar time at off whose members are first, first + 1, ... first + 7. */
    static Bytes.Builder systemTime(Bytes.Builder b, int off, int first) {
        for (int i = 0; i < 8; i++) {
            b.u16(off + 2 * i, first + i);
        }
        return b;
    }

    static void assertSystemTime(int first, SYSTEMTIME t) {
        short[] members = {t.Year, t.Month, t.DayOfWeek, t.Day, t.Hour, t.Minute, t.Second, t.Milliseconds};
        for (int i = 0; i < 8; i++) {
            assertEquals((short) (first + i), members[i], "member " + i);
        }
    }

    /** A record with every field set, seen times in the calendar form, no optional records. */
    static Bytes.Builder fullRecord(byte[] tagID) {
        Bytes.Builder b = new Bytes.Builder(RECORD_SIZE)
                .u32(0, 0x8000_0001L).u32(4, 192)
                .ptr(8, SimControl.alloc(tagID)).u32(16, tagID.length).u32(20, 64)
                .u16(24, 0xFFFF).u32(28, 0xFFFF_FFFEL).u16(32, 0x8001).u16(34, 0xFFFE)
                .u8(72, 0xC4).u16(74, 0x8000).u16(76, 0x8000)
                .u32(80, 0).u32(84, 7).u32(88, 3)
                .ptr(96, SimControl.alloc(new byte[] {(byte) 0xAB, 0x0C, (byte) 0xDE}))
                .u32(104, 0xFFFF_FFFFL).u32(108, 3).u32(112, 8)
                .u32(116, 2)
                .u16(168, 0xFED4);
        systemTime(b, 40, 0x7FFE);
        systemTime(b, 56, 2024);
        return systemTime(b, 120, 0xFFF0);
    }

    /** Reads one record through a tag record that Java holds; returns the status. */
    static int readTag(int handle, TAG_DATA tag, byte[] record, boolean utcTime) {
        long address = ORLANatives.RFID_AllocateTag(handle);
        SimControl.setOutput("RFID_GetReadTag", record);
        int status = ORLANatives.RFID_GetReadTag(handle, tag, address, utcTime);
        assertEquals(0, ORLANatives.RFID_DeallocateTag(handle, address));
        return status;
    }

    /** A tag object whose fields that a record may or may not touch hold recognisable values. */
    static TAG_DATA markedTag() {
        TAG_DATA tag = new TAG_DATA();
        tag.seenTime.upTime.firstSeenTimeStamp = 77;
        tag.seenTime.utcTime.firstSeenTimeStamp.Year = 77;
        tag.AccessOperationResult.value.qtData.qtControlData = 77;
        tag.AccessOperationResult.value.nxpChangeConfigWordResult.ChangeConfigWord = 77;
        tag.AccessOperationResult.value.authenticateReadBufferResult = "kept";
        tag.gpsLocation.longitude = 77;
        tag.location.relativeDistance = 77;
        tag.isContainLocationInfo = true;
        return tag;
    }

    @Test
    void calendarRecordFillsEveryFieldWithItsSignAndWidth() {
        int handle = connect();
        TAG_DATA tag = markedTag();
        assertEquals(0, readTag(handle, tag, fullRecord(EPC).build(), true));

        assertEquals(0x8000_0001, tag.structInfo.memoryAllocated);
        assertEquals(192, tag.structInfo.memoryUsed);
        assertEquals("3000123456789ABCDEF01122", tag.tagID);
        assertEquals(12, tag.tagIDLength);
        assertEquals(64, tag.tagIDAllocated);
        assertEquals(0xFFFF, tag.PC, "PC is widened without sign");
        assertEquals(-2, tag.XPC);
        assertEquals(0x8001, tag.CRC, "CRC is widened without sign");
        assertEquals(-2, tag.antennaID);
        assertEquals(-60, tag.peakRSSI, "the RSSI byte 0xC4 is signed");
        assertEquals(-32768, tag.channelIndex);
        assertEquals(-32768, tag.tagSeenCount);
        assertEquals(-300, tag.phaseInfo);
        assertEquals("AB0CDE", tag.memoryBankData);
        assertEquals(-1, tag.memoryBankDataByteOffset);
        assertEquals(3, tag.memoryBankDataLength);
        assertEquals(8, tag.memoryBankDataAllocated);
        assertEquals(0, tag.enumOPCode);
        assertEquals(7, tag.enumOPStatus);
        assertEquals(3, tag.enumMemoryBank);
        assertEquals(2, tag.enumTagEvent);
        assertSystemTime(0x7FFE, tag.seenTime.utcTime.firstSeenTimeStamp);
        assertSystemTime(2024, tag.seenTime.utcTime.lastSeenTimeStamp);
        assertSystemTime(0xFFF0, tag.tagEventTimeStamp);

        assertEquals(77, tag.seenTime.upTime.firstSeenTimeStamp, "the up-time form is left alone");
        assertEquals(77, tag.AccessOperationResult.value.qtData.qtControlData, "no result record, no result");
        assertEquals("kept", tag.AccessOperationResult.value.authenticateReadBufferResult);
        assertEquals(77, tag.gpsLocation.longitude, "no GPS record, no GPS");
        assertFalse(tag.isContainLocationInfo, "an earlier tag's location flag is cleared");
        assertEquals(77, tag.location.relativeDistance);
    }

    @Test
    void upTimeRecordFillsTheCountsAndEmptyTexts() {
        int handle = connect();
        TAG_DATA tag = markedTag();
        byte[] record = fullRecord(new byte[0])
                .s64(40, 0x0123_4567_89AB_CDEFL).s64(48, 0xFEDC_BA98_7654_3210L)
                .u32(108, 0)
                .build();
        assertEquals(0, readTag(handle, tag, record, false));

        assertEquals(0x0123_4567_89AB_CDEFL, tag.seenTime.upTime.firstSeenTimeStamp);
        assertEquals(0xFEDC_BA98_7654_3210L, tag.seenTime.upTime.lastSeenTimeStamp);
        assertEquals(77, tag.seenTime.utcTime.firstSeenTimeStamp.Year, "the calendar form is left alone");
        assertEquals("", tag.tagID);
        assertEquals("", tag.memoryBankData);
    }

    @Test
    void impinjAndNxpResultsAreSignedWords() {
        int handle = connect();
        TAG_DATA qt = markedTag();
        assertEquals(0, readTag(handle, qt, fullRecord(EPC).u32(80, 21)
                .ptr(144, SimControl.alloc(new byte[] {0x01, (byte) 0x80})).build(), true));
        assertEquals(-32767, qt.AccessOperationResult.value.qtData.qtControlData);
        assertEquals(77, qt.AccessOperationResult.value.nxpChangeConfigWordResult.ChangeConfigWord);

        TAG_DATA nxp = markedTag();
        assertEquals(0, readTag(handle, nxp, fullRecord(EPC).u32(80, 22)
                .ptr(144, SimControl.alloc(new byte[] {(byte) 0xFE, (byte) 0xFF})).build(), true));
        assertEquals(-2, nxp.AccessOperationResult.value.nxpChangeConfigWordResult.ChangeConfigWord);
        assertEquals(77, nxp.AccessOperationResult.value.qtData.qtControlData);
    }

    private static String bitStringResult(int handle, int opCode, int bits) {
        long reply = SimControl.alloc(new byte[] {(byte) 0xA1, (byte) 0xB2, (byte) 0xC3});
        long result = SimControl.alloc(new Bytes.Builder(16).u16(0, bits).u16(2, 0xFFFF).ptr(8, reply).build());
        TAG_DATA tag = markedTag();
        assertEquals(0, readTag(handle, tag, fullRecord(EPC).u32(80, opCode).ptr(144, result).build(), true));
        assertEquals(77, tag.AccessOperationResult.value.qtData.qtControlData);
        return tag.AccessOperationResult.value.authenticateReadBufferResult;
    }

    @ParameterizedTest
    @ValueSource(ints = {23, 24, 26})
    void bitStringRepliesKeepWholeBytesOnly(int opCode) {
        int handle = connect();
        assertEquals("A1B2", bitStringResult(handle, opCode, 20));
        assertEquals("A1B2C3", bitStringResult(handle, opCode, 24));
        assertEquals("", bitStringResult(handle, opCode, 5), "1 to 7 bits give the empty text");
        assertEquals("kept", bitStringResult(handle, opCode, 0), "0 bits leave the text as it was");
    }

    @ParameterizedTest
    @ValueSource(ints = {0, 20, 25, 27})
    void otherOperationCodesLeaveTheResultAlone(int opCode) {
        int handle = connect();
        long result = SimControl.alloc(new Bytes.Builder(16).u16(0, 20).ptr(8, SimControl.alloc(EPC)).build());
        TAG_DATA tag = markedTag();
        assertEquals(0, readTag(handle, tag, fullRecord(EPC).u32(80, opCode).ptr(144, result).build(), true));
        assertEquals(77, tag.AccessOperationResult.value.qtData.qtControlData);
        assertEquals(77, tag.AccessOperationResult.value.nxpChangeConfigWordResult.ChangeConfigWord);
        assertEquals("kept", tag.AccessOperationResult.value.authenticateReadBufferResult);
    }

    @Test
    void locationAndGpsRecordsAreCopiedWhenPresent() {
        int handle = connect();
        TAG_DATA tag = new TAG_DATA();
        long location = SimControl.alloc(new Bytes.Builder(8).u16(0, 0xFFFB).build());
        long gps = SimControl.alloc(new Bytes.Builder(12).s32(0, -122).s32(4, 47).s32(8, 0x8000_0000).build());
        assertEquals(0, readTag(handle, tag, fullRecord(EPC).ptr(136, location).ptr(184, gps).build(), true));

        assertTrue(tag.isContainLocationInfo);
        assertEquals(-5, tag.location.relativeDistance);
        assertEquals(-122, tag.gpsLocation.longitude);
        assertEquals(47, tag.gpsLocation.latitude);
        assertEquals(Integer.MIN_VALUE, tag.gpsLocation.altitude);
    }

    @Test
    void failedReadLeavesTheTagObjectUntouched() {
        int handle = connect();
        SimControl.setStatus("RFID_GetReadTag", 3);
        TAG_DATA tag = markedTag();
        byte[] record = fullRecord(EPC).ptr(136, SimControl.alloc(new byte[8])).build();
        assertEquals(3, readTag(handle, tag, record, true));

        assertNull(tag.tagID);
        assertEquals(0, tag.tagIDLength);
        assertEquals(0, tag.structInfo.memoryAllocated);
        assertEquals(0, tag.peakRSSI);
        assertTrue(tag.isContainLocationInfo);
        assertEquals(77, tag.seenTime.utcTime.firstSeenTimeStamp.Year);
    }

    @Test
    void heldRecordsAreObtainedPassedAndGivenBack() {
        int handle = connect();
        long address = ORLANatives.RFID_AllocateTag(handle);
        assertNotEquals(0L, address);
        assertEquals(1, SimReader.liveTagRecords(handle));

        ORLANatives.RFID_GetReadTag(handle, new TAG_DATA(), address, true);
        assertEquals(address, SimControl.args("RFID_GetReadTag", -1)[1]);

        SimControl.queueStatus("RFID_DeallocateTag", 42);
        assertEquals(42, ORLANatives.RFID_DeallocateTag(handle, address), "the status comes back unchanged");
        assertEquals(0, ORLANatives.RFID_DeallocateTag(handle, address));
        long[] args = SimControl.args("RFID_DeallocateTag", -1);
        assertEquals(handle, args[0]);
        assertEquals(address, args[1]);
        assertEquals(0, SimReader.liveTagRecords(handle));
    }

    @Test
    void readerHandlesReachTheLibrarySignExtended() {
        ORLANatives.RFID_AllocateTag(-2);
        assertEquals(-2L, SimControl.args("RFID_AllocateTag", -1)[0]);
        ORLANatives.RFID_DeallocateTag(0x8000_0000, 0x1234_5678_9ABCL);
        long[] args = SimControl.args("RFID_DeallocateTag", -1);
        assertEquals(0xFFFF_FFFF_8000_0000L, args[0]);
        assertEquals(0x1234_5678_9ABCL, args[1]);
    }
}
