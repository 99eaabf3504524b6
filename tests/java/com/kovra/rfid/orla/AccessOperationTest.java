package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNull;

import com.kovra.rfid.orla.sim.Bytes;
import com.kovra.rfid.orla.sim.Call;
import com.kovra.rfid.orla.sim.SimControl;
import java.util.LinkedHashMap;
import java.util.Map;
import java.util.function.IntBinaryOperator;
import org.junit.jupiter.api.Test;

/**
 * Single Gen2 operations on one tag: the parameter records and the access
 * filter as the reader received them (read at the reader's offsets from the
 * simulator's copies), the argument order and widths; and, for every tag
 * operation of the three families, the objects or NULLs passed on and the
 * result tag.
 */
class AccessOperationTest extends TagAccessTest {

    private static READ_ACCESS_PARAMS readParams() {
        READ_ACCESS_PARAMS p = new READ_ACCESS_PARAMS();
        p.memoryBank = MEMORY_BANK.MEMORY_BANK_USER;
        p.byteOffset = (short) 0x8001;
        p.byteCount = -1;
        p.accessPassword = PASSWORD;
        return p;
    }

    /** The handle goes through the access frame of every operation: one check of its sign stands for all. */
    @Test
    void readSendsItsArgumentsInOrderAndWidth() {
        assertEquals(1, ORLANatives.RFID_Read(NO_READER, TAG_ID, 6, readParams(), null, null, null, null, null, true),
                "the reader's status as it is");
        Call call = Call.last("RFID_Read");
        assertEquals(NO_READER_RAW, call.arg(0), "handle sign-extended");
        assertArrayEquals(new long[] {3, 0x8001, 0xFFFF, 0x8765_4321L},
                fields(call.blob("params"), 0, 4, 4, 2, 6, 2, 8, 4));

        ORLANatives.RFID_Read(NO_READER, "", 0, null, null, null, null, null, null, false);
        assertArrayEquals(new byte[0], Call.last("RFID_Read").blob("tagID"),
                "an empty tag ID is an empty buffer, not NULL");
    }

    /** Every single tag operation of the three families; a parameter object is optional but where it is not. */
    @Test
    void eachOperationPassesItsObjectsOrNulls() {
        assertObjectsOrNulls("RFID_Read", new READ_ACCESS_PARAMS(), (h, p, f, a, t) ->
                ORLANatives.RFID_Read(h, TAG_ID, 6, (READ_ACCESS_PARAMS) p, f, a, t, null, null, true));
        assertObjectsOrNulls("RFID_Write", new WRITE_ACCESS_PARAMS(), (h, p, f, a, t) ->
                ORLANatives.RFID_Write(h, TAG_ID, 6, (WRITE_ACCESS_PARAMS) p, f, a));
        assertObjectsOrNulls("RFID_BlockWrite", new WRITE_ACCESS_PARAMS(), (h, p, f, a, t) ->
                ORLANatives.RFID_BlockWrite(h, TAG_ID, 6, (WRITE_ACCESS_PARAMS) p, f, a));
        assertObjectsOrNulls("RFID_BlockErase", new BLOCK_ERASE_ACCESS_PARAMS(), (h, p, f, a, t) ->
                ORLANatives.RFID_BlockErase(h, TAG_ID, 6, (BLOCK_ERASE_ACCESS_PARAMS) p, f, a));
        assertObjectsOrNulls("RFID_Lock", new LOCK_ACCESS_PARAMS(), (h, p, f, a, t) ->
                ORLANatives.RFID_Lock(h, TAG_ID, 6, (LOCK_ACCESS_PARAMS) p, f, a));
        assertObjectsOrNulls("RFID_Kill", new KILL_ACCESS_PARAMS(), (h, p, f, a, t) ->
                ORLANatives.RFID_Kill(h, TAG_ID, 6, (KILL_ACCESS_PARAMS) p, f, a));
        assertObjectsOrNulls("RFID_BlockPermalock", new BLOCK_PERMALOCK_ACCESS_PARAMS(), (h, p, f, a, t) ->
                ORLANatives.RFID_BlockPermalock(h, TAG_ID, 6, (BLOCK_PERMALOCK_ACCESS_PARAMS) p, f, a, t, null, null,
                        true));
        assertObjectsOrNulls("RFID_Recommission", new RECOMMISSION_ACCESS_PARAMS(), (h, p, f, a, t) ->
                ORLANatives.RFID_Recommission(h, TAG_ID, 6, (RECOMMISSION_ACCESS_PARAMS) p, f, a));
        assertObjectsOrNulls("RFID_WriteAccessPassword", new WRITE_FIELD_ACCESS_PARAMS(), (h, p, f, a, t) ->
                ORLANatives.RFID_WriteAccessPassword(h, TAG_ID, 6, (WRITE_FIELD_ACCESS_PARAMS) p, a));
        assertObjectsOrNulls("RFID_WriteKillPassword", new WRITE_FIELD_ACCESS_PARAMS(), (h, p, f, a, t) ->
                ORLANatives.RFID_WriteKillPassword(h, TAG_ID, 6, (WRITE_FIELD_ACCESS_PARAMS) p, a));
        assertObjectsOrNulls("RFID_WriteTagID", new WRITE_FIELD_ACCESS_PARAMS(), (h, p, f, a, t) ->
                ORLANatives.RFID_WriteTagID(h, TAG_ID, 6, (WRITE_FIELD_ACCESS_PARAMS) p, a));
        assertObjectsOrNulls("RFID_NXPReadProtect", new NXP_READ_PROTECT_PARAMS(), (h, p, f, a, t) ->
                ORLANatives.RFID_NXPReadProtect(h, TAG_ID, 6, (NXP_READ_PROTECT_PARAMS) p, f, a));
        assertObjectsOrNulls("RFID_NXPSetEAS", new NXP_SET_EAS_PARAMS(), (h, p, f, a, t) ->
                ORLANatives.RFID_NXPSetEAS(h, TAG_ID, 6, (NXP_SET_EAS_PARAMS) p, f, a));
        assertObjectsOrNulls("RFID_NXPChangeConfig", new NXP_CHANGE_CONFIG_PARAMS(), (h, p, f, a, t) ->
                ORLANatives.RFID_NXPChangeConfig(h, TAG_ID, 6, (NXP_CHANGE_CONFIG_PARAMS) p, f, a, t, null, null,
                        true));
        assertObjectsOrNulls("RFID_ImpinjQTWrite", new IMPINJ_QT_WRITE_PARAMS(), (h, p, f, a, t) ->
                ORLANatives.RFID_ImpinjQTWrite(h, TAG_ID, 6, (IMPINJ_QT_WRITE_PARAMS) p, f, a));
        assertObjectsOrNulls("RFID_ImpinjQTRead", new IMPINJ_QT_READ_PARAMS(), (h, p, f, a, t) ->
                ORLANatives.RFID_ImpinjQTRead(h, TAG_ID, 6, (IMPINJ_QT_READ_PARAMS) p, f, a, t, null, null, true));
        assertObjectsOrNulls("RFID_Authenticate", new AUTHENTICATE_PARAMS(), false, (h, p, f, a, t) ->
                ORLANatives.RFID_Athenticate(h, TAG_ID, 6, (AUTHENTICATE_PARAMS) p, f, a, t, null, null, true));
        assertObjectsOrNulls("RFID_Untraceable", new UNTRACEABLE_PARAMS(), false, (h, p, f, a, t) ->
                ORLANatives.RFID_Untraceable(h, TAG_ID, 6, (UNTRACEABLE_PARAMS) p, f, a, t, null, null, true));
        assertObjectsOrNulls("RFID_Crypto", new CRYPTO_PARAMS(), (h, p, f, a, t) ->
                ORLANatives.RFID_Crypto(h, TAG_ID, 6, (CRYPTO_PARAMS) p, f, a, t, null, null, true));
    }

    /**
     * Every operation that returns a tag: written with the UTC form asked for on success only, always given
     * back. What the result record holds is the tag writer's to convert.
     */
    @Test
    void eachResultTagReachesJavaOnSuccessOnlyAndIsAlwaysGivenBack() {
        Map<String, ResultTagOperation> operations = new LinkedHashMap<>();
        operations.put("RFID_Read", (h, t, utc) ->
                ORLANatives.RFID_Read(h, TAG_ID, 6, null, null, null, t, null, null, utc));
        operations.put("RFID_BlockPermalock", (h, t, utc) ->
                ORLANatives.RFID_BlockPermalock(h, TAG_ID, 6, null, null, null, t, null, null, utc));
        operations.put("RFID_NXPChangeConfig", (h, t, utc) ->
                ORLANatives.RFID_NXPChangeConfig(h, TAG_ID, 6, null, null, null, t, null, null, utc));
        operations.put("RFID_ImpinjQTRead", (h, t, utc) ->
                ORLANatives.RFID_ImpinjQTRead(h, TAG_ID, 6, null, null, null, t, null, null, utc));
        operations.put("RFID_Authenticate", (h, t, utc) ->
                ORLANatives.RFID_Athenticate(h, TAG_ID, 6, new AUTHENTICATE_PARAMS(), null, null, t, null, null, utc));
        operations.put("RFID_Untraceable", (h, t, utc) ->
                ORLANatives.RFID_Untraceable(h, TAG_ID, 6, new UNTRACEABLE_PARAMS(), null, null, t, null, null, utc));
        operations.put("RFID_Crypto", (h, t, utc) ->
                ORLANatives.RFID_Crypto(h, TAG_ID, 6, null, null, null, t, null, null, utc));
        for (Map.Entry<String, ResultTagOperation> operation : operations.entrySet()) {
            SimControl.reset();
            TAG_DATA tag = checkResultTag(operation.getKey(), resultTag(0, new byte[16]), operation.getValue());
            assertEquals("30001234", tag.tagID, operation.getKey());
        }

        TAG_DATA upTime = markedTag();
        byte[] result = resultTag(0, new byte[16]);
        SimControl.setOutput("RFID_Read", result);
        assertEquals(0, ORLANatives.RFID_Read(connect(), TAG_ID, 6, null, null, null, upTime, null, null, false));
        assertEquals(Bytes.s64(result, 40), upTime.seenTime.upTime.firstSeenTimeStamp, "up-time form asked for");
        assertEquals(77, upTime.seenTime.utcTime.firstSeenTimeStamp.Year);
    }

    @Test
    void readRunsWithoutATagRecordWhenTheReaderHasNone() {
        int handle = connect();
        SimControl.setPointer("RFID_AllocateTag", 0);
        SimControl.setOutput("RFID_Read", resultTag(0, new byte[16]));
        TAG_DATA tag = markedTag();
        assertEquals(0, ORLANatives.RFID_Read(handle, TAG_ID, 6, null, null, null, tag, null, null, true));
        assertEquals(0L, Call.last("RFID_Read").arg(6));
        assertNull(tag.tagID);
        assertEquals(0, SimControl.count("RFID_DeallocateTag"));
    }

    /**
     * The access filter's own record: its fields, and each part hung where it belongs. How patterns and RSSI
     * ranges are converted is the post filter's conversion, checked with it.
     */
    @Test
    void accessFilterRecordsSitAtTheirOffsets() {
        ACCESS_FILTER filter = new ACCESS_FILTER();
        filter.structInfo.memoryAllocated = -2;
        filter.structInfo.memoryUsed = 0x0102_0304;
        filter.tagPatternA = new TAG_PATTERN();
        filter.tagPatternA.tagPattern = new byte[] {(byte) 0xE2};
        filter.tagPatternA.tagPatternBitCount = 8;
        filter.tagPatternB = new TAG_PATTERN();
        filter.tagPatternB.tagPattern = new byte[] {0x30};
        filter.tagPatternB.tagPatternBitCount = 8;
        filter.matchPattern = FILTER_MATCH_PATTERN.A_AND_NOTB;
        filter.rssiRangeFilter = new RSSI_RANGE_FILTER();
        filter.rssiRangeFilter.matchRange = MATCH_RANGE.LOWER_THAN_UPPER_LIMIT;

        ORLANatives.RFID_Read(NO_READER, TAG_ID, 6, null, filter, null, null, null, null, true);
        Call call = Call.last("RFID_Read");
        assertArrayEquals(new long[] {0xFFFF_FFFEL, 0x0102_0304, 3}, fields(call.blob("accessFilter"), 0, 4, 4, 4, 24, 4));
        assertArrayEquals(new byte[] {(byte) 0xE2}, call.blob("accessFilter.tagPatternA.tagPattern"));
        assertArrayEquals(new byte[] {0x30}, call.blob("accessFilter.tagPatternB.tagPattern"));
        assertEquals(3, Bytes.u32(call.blob("accessFilter.rssiRangeFilter"), 4));

        ORLANatives.RFID_Read(NO_READER, TAG_ID, 6, null, new ACCESS_FILTER(), null, null, null, null, true);
        assertArrayEquals(new long[] {0, 0, 0, 0}, fields(Call.last("RFID_Read").blob("accessFilter"),
                8, 8, 16, 8, 24, 4, 32, 8), "optional patterns and RSSI range are NULL");
    }

    private static WRITE_ACCESS_PARAMS writeParams(byte[] data, int length) {
        WRITE_ACCESS_PARAMS p = new WRITE_ACCESS_PARAMS();
        p.memoryBank = MEMORY_BANK.MEMORY_BANK_TID;
        p.byteOffset = (short) 0xFFFE;
        p.writeData = data;
        p.writeDataLength = (short) length;
        p.accessPassword = PASSWORD;
        return p;
    }

    @Test
    void writeAndBlockWriteSendAZeroedRecordWithTheirData() {
        for (String fn : new String[] {"RFID_Write", "RFID_BlockWrite"}) {
            WRITE_ACCESS_PARAMS p = writeParams(new byte[] {1, 2, 3, 4, 5}, 3);
            int status = fn.equals("RFID_Write")
                    ? ORLANatives.RFID_Write(NO_READER, TAG_ID, 6, p, null, null)
                    : ORLANatives.RFID_BlockWrite(NO_READER, TAG_ID, 6, p, null, null);
            assertEquals(1, status);
            Call call = Call.last(fn);
            byte[] record = call.blob("params");
            assertArrayEquals(new long[] {2, 0xFFFE, 3, 0x8765_4321L}, fields(record, 0, 4, 4, 2, 16, 2, 20, 4), fn);
            assertZero(record, 6, 8);
            assertZero(record, 18, 20);
            assertZero(record, 24, 56);
            assertArrayEquals(new byte[] {1, 2, 3}, call.blob("params.writeData"), fn + ": exactly the length");
        }

        byte[] data = new byte[0x8000];
        data[0x7FFF] = 0x5A;
        ORLANatives.RFID_Write(NO_READER, TAG_ID, 6, writeParams(data, 0x8000), null, null);
        Call call = Call.last("RFID_Write");
        assertEquals(0x8000, Bytes.u16(call.blob("params"), 16), "length taken unsigned");
        assertArrayEquals(data, call.blob("params.writeData"));

        ORLANatives.RFID_BlockWrite(NO_READER, TAG_ID, 6, writeParams(new byte[0], 0), null, null);
        assertArrayEquals(new byte[0], Call.last("RFID_BlockWrite").blob("params.writeData"), "empty, not NULL");
    }

    @Test
    void blockEraseKillAndRecommissionFillTheirRecords() {
        BLOCK_ERASE_ACCESS_PARAMS erase = new BLOCK_ERASE_ACCESS_PARAMS();
        erase.memoryBank = MEMORY_BANK.MEMORY_BANK_RESERVED;
        erase.byteOffset = 4;
        erase.byteCount = (short) 0x8000;
        erase.accessPassword = -1;
        ORLANatives.RFID_BlockErase(NO_READER, TAG_ID, 6, erase, null, null);
        assertArrayEquals(new long[] {0, 4, 0x8000, 0xFFFF_FFFFL},
                fields(Call.last("RFID_BlockErase").blob("params"), 0, 4, 4, 2, 6, 2, 8, 4));

        KILL_ACCESS_PARAMS kill = new KILL_ACCESS_PARAMS();
        kill.killPassword = PASSWORD;
        ORLANatives.RFID_Kill(NO_READER, TAG_ID, 6, kill, null, null);
        byte[] killRecord = Call.last("RFID_Kill").blob("params");
        assertEquals(0x8765_4321L, Bytes.u32(killRecord, 0));

        RECOMMISSION_ACCESS_PARAMS recommission = new RECOMMISSION_ACCESS_PARAMS();
        recommission.killPassword = PASSWORD;
        recommission.opCode = RECOMMISSION_OPERATION_CODE.RECOMMISSION_DISABLE_USER_MEMORY_PASSWORD_2ND_OPTION;
        ORLANatives.RFID_Recommission(NO_READER, TAG_ID, 6, recommission, null, null);
        assertArrayEquals(new long[] {0x8765_4321L, 6}, fields(Call.last("RFID_Recommission").blob("params"),
                0, 4, 4, 4));
    }

    @Test
    void lockWidensExactlyFivePrivilegesWithoutSign() {
        LOCK_ACCESS_PARAMS lock = new LOCK_ACCESS_PARAMS();
        lock.enumPrivilege = new short[] {0, 1, -1, 3, (short) 0x8002, 7};
        lock.accessPassword = PASSWORD;
        ORLANatives.RFID_Lock(NO_READER, TAG_ID, 6, lock, null, null);
        assertArrayEquals(new long[] {0, 1, 0xFFFF, 3, 0x8002, 0x8765_4321L},
                fields(Call.last("RFID_Lock").blob("params"), 0, 4, 4, 4, 8, 4, 12, 4, 16, 4, 20, 4),
                "the sixth element is not read");
    }

    @Test
    void blockPermalockFillsItsRecordAndMask() {
        BLOCK_PERMALOCK_ACCESS_PARAMS p = new BLOCK_PERMALOCK_ACCESS_PARAMS();
        p.memoryBank = MEMORY_BANK.MEMORY_BANK_USER;
        p.readLock = true;
        p.byteOffset = (short) 0x8000;
        p.byteCount = 2;
        p.accessPassword = PASSWORD;
        p.mask = new byte[] {(byte) 0xF0, 0x0F, 0x55};
        p.maskLength = 2;
        ORLANatives.RFID_BlockPermalock(NO_READER, TAG_ID, 6, p, null, null, null, null, null, true);
        Call call = Call.last("RFID_BlockPermalock");
        assertArrayEquals(new long[] {3, 1, 0x8000, 2, 0x8765_4321L, 2},
                fields(call.blob("params"), 0, 4, 4, 1, 6, 2, 8, 2, 12, 4, 24, 2));
        assertArrayEquals(new byte[] {(byte) 0xF0, 0x0F}, call.blob("params.mask"));

        p.readLock = false;
        p.maskLength = 0;
        p.mask = null;
        ORLANatives.RFID_BlockPermalock(NO_READER, TAG_ID, 6, p, null, null, null, null, null, true);
        call = Call.last("RFID_BlockPermalock");
        assertArrayEquals(new long[] {0, 0}, fields(call.blob("params"), 4, 1, 24, 2));
        assertArrayEquals(new byte[0], call.blob("params.mask"), "an empty mask, the Java array not read");
    }

    @Test
    void singleFieldWritesTakeNoFilterAndCopyTheirData() {
        IntBinaryOperator[] writes = {
            (h, n) -> ORLANatives.RFID_WriteAccessPassword(h, TAG_ID, n, fieldParams(), null),
            (h, n) -> ORLANatives.RFID_WriteKillPassword(h, TAG_ID, n, fieldParams(), null),
            (h, n) -> ORLANatives.RFID_WriteTagID(h, TAG_ID, n, fieldParams(), null)};
        String[] names = {"RFID_WriteAccessPassword", "RFID_WriteKillPassword", "RFID_WriteTagID"};
        for (int i = 0; i < writes.length; i++) {
            assertEquals(1, writes[i].applyAsInt(NO_READER, 6));
            Call call = Call.last(names[i]);
            byte[] record = call.blob("params");
            assertArrayEquals(new long[] {0x8004, 0x8765_4321L}, fields(record, 8, 2, 12, 4), names[i]);
            byte[] expected = new byte[0x8004];
            expected[0x8003] = 0x44;
            assertArrayEquals(expected, call.blob("params.writeData"), names[i] + ": length taken unsigned");
        }
    }

    private static WRITE_FIELD_ACCESS_PARAMS fieldParams() {
        WRITE_FIELD_ACCESS_PARAMS p = new WRITE_FIELD_ACCESS_PARAMS();
        p.accessPassword = PASSWORD;
        p.writeData = new byte[0x8005];
        p.writeData[0x8003] = 0x44;
        p.writeData[0x8004] = 0x55;
        p.writeDataLength = (short) 0x8004;
        return p;
    }
}
