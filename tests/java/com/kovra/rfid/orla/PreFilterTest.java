package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotEquals;
import static org.junit.jupiter.api.Assertions.assertNull;

import com.kovra.rfid.orla.sim.Bytes;
import com.kovra.rfid.orla.sim.Call;
import com.kovra.rfid.orla.sim.SimControl;
import org.junit.jupiter.api.Test;

/** Pre-filters: the 36 bytes of the record, the action parameters at 24 and 28, and the index. */
class PreFilterTest extends NativeTest {

    private static final byte[] INDEX = new Bytes.Builder(4).u32(0, 0xFEDC_BA98L).build();

    private static PRE_FILTER filter(FILTER_ACTION_PARAMS params) {
        PRE_FILTER f = new PRE_FILTER();
        f.memoryBank = MEMORY_BANK.MEMORY_BANK_USER;
        f.tagPattern = new byte[] {(byte) 0xDE, (byte) 0xAD, (byte) 0xBE, (byte) 0xEF};
        f.tagPatternBitCount = 12;
        f.bitOffset = (short) 0x8020;
        f.filterAction = FILTER_ACTION.FILTER_ACTION_STATE_AWARE;
        f.truncateAction = TRUNCATE_ACTION.TRUNCATE_ACTION_TRUNCATE;
        f.filterActionParams = params;
        return f;
    }

    private static FILTER_ACTION_PARAMS params(STATE_UNAWARE_ACTION unaware, TARGET target, STATE_AWARE_ACTION aware) {
        FILTER_ACTION_PARAMS p = new FILTER_ACTION_PARAMS();
        p.stateUnawareAction = unaware;
        if (target != null || aware != null) {
            p.stateAwareParams = new STATE_AWARE_ACTION_PARAMS();
            p.stateAwareParams.target = target;
            p.stateAwareParams.stateAwareAction = aware;
        }
        return p;
    }

    /** Adds the filter on antenna 2 of a connected reader; returns the record the reader got. */
    private static byte[] add(PRE_FILTER f) {
        int handle = TagDataTest.connect();
        assertEquals(0, ORLANatives.RFID_AddPreFilter(handle, 2, f, new int[1]));
        return SimControl.blob("RFID_AddPreFilter", -1, "preFilter");
    }

    @Test
    void recordFieldsSitAtTheirOffsetsAndTheTargetWinsAt24() {
        int handle = TagDataTest.connect();
        SimControl.setOutput("RFID_AddPreFilter", INDEX);
        int[] index = {-1};
        PRE_FILTER f = filter(params(STATE_UNAWARE_ACTION.STATE_UNAWARE_ACTION_NOT_SELECT, TARGET.TARGET_SL,
                STATE_AWARE_ACTION.STATE_AWARE_ACTION_NOT_INV_A2BB2A));

        assertEquals(0, ORLANatives.RFID_AddPreFilter(handle, 0x1_0002, f, index));

        assertEquals(0xFEDC_BA98, index[0]);
        Call call = Call.last("RFID_AddPreFilter");
        assertEquals(handle, call.arg(0));
        assertEquals(2L, call.arg(1), "the antenna goes as 16 bits");
        byte[] r = call.blob("preFilter");
        assertEquals(3L, Bytes.u32(r, 0));
        assertNotEquals(0L, Bytes.ptr(r, 8));
        assertEquals(12, Bytes.u16(r, 16));
        assertEquals(0x8020, Bytes.u16(r, 18));
        assertEquals(1L, Bytes.u32(r, 20));
        assertEquals(4L, Bytes.u32(r, 24), "the state-aware target overwrites the state-unaware action");
        assertEquals(7L, Bytes.u32(r, 28));
        assertEquals(2L, Bytes.u32(r, 32));
        assertArrayEquals(new byte[] {(byte) 0xDE, (byte) 0xAD}, call.blob("preFilter.tagPattern"));
    }

    @Test
    void eachActionParameterIsSentOnlyWhenSet() {
        byte[] unawareOnly = add(filter(params(STATE_UNAWARE_ACTION.STATE_UNAWARE_ACTION_UNSELECT, null, null)));
        assertEquals(3L, Bytes.u32(unawareOnly, 24));

        byte[] noTarget = add(filter(params(STATE_UNAWARE_ACTION.STATE_UNAWARE_ACTION_NOT_UNSELECT, null,
                STATE_AWARE_ACTION.STATE_AWARE_ACTION_INV_B)));
        assertEquals(2L, Bytes.u32(noTarget, 24), "without a target the state-unaware action stays");
        assertEquals(5L, Bytes.u32(noTarget, 28));

        byte[] targetOnly = add(filter(params(null, TARGET.TARGET_INVENTORIED_STATE_S3, null)));
        assertEquals(3L, Bytes.u32(targetOnly, 24));
    }

    @Test
    void zeroBitPatternStillGetsABuffer() {
        PRE_FILTER f = filter(null);
        f.tagPatternBitCount = 0;
        f.tagPattern = new byte[0];
        byte[] r = add(f);
        assertNotEquals(0L, Bytes.ptr(r, 8));
        assertArrayEquals(new byte[0], SimControl.blob("RFID_AddPreFilter", -1, "preFilter.tagPattern"));
    }

    @Test
    void failureLeavesTheIndexUnchanged() {
        int handle = TagDataTest.connect();
        SimControl.setOutput("RFID_AddPreFilter", INDEX);
        SimControl.setStatus("RFID_AddPreFilter", 7);
        int[] index = {-5};
        assertEquals(7, ORLANatives.RFID_AddPreFilter(handle, 1, filter(null), index));
        assertEquals(-5, index[0]);
    }

    @Test
    void nullIndexArraySendsANullFilter() {
        int handle = TagDataTest.connect();
        ORLANatives.RFID_AddPreFilter(handle, 1, filter(null), null);
        Call call = Call.last("RFID_AddPreFilter");
        assertEquals(0L, call.arg(2));
        assertNotEquals(0L, call.arg(3), "the index still has a place to go");
        assertNull(call.blob("preFilter"));
    }

    @Test
    void deleteTakesTheIndexTheReaderGave() {
        int handle = TagDataTest.connect();
        int[] index = {-1};
        assertEquals(0, ORLANatives.RFID_AddPreFilter(handle, 3, filter(null), index));
        assertEquals(0, ORLANatives.RFID_DeletePreFilter(handle, 3, index[0]));
        assertArrayEquals(new long[] {handle, 3, index[0] & 0xFFFF_FFFFL}, SimControl.args("RFID_DeletePreFilter", -1));

        ORLANatives.RFID_DeletePreFilter(-3, 0x1_FFFF, -1);
        assertArrayEquals(new long[] {-3L, 0xFFFF, 0xFFFF_FFFFL}, SimControl.args("RFID_DeletePreFilter", -1));
    }
}
