package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotEquals;
import static org.junit.jupiter.api.Assertions.assertNull;

import com.kovra.rfid.orla.sim.Bytes;
import com.kovra.rfid.orla.sim.Call;
import com.kovra.rfid.orla.sim.SimControl;
import org.junit.jupiter.api.Test;

/** Pre-filters: the record the reader gets, the action parameters at 24 and 28, and the index. */
class PreFilterTest extends NativeTest {

    private static PRE_FILTER filter(STATE_UNAWARE_ACTION unaware, TARGET target, STATE_AWARE_ACTION aware) {
        PRE_FILTER f = new PRE_FILTER();
        f.memoryBank = MEMORY_BANK.MEMORY_BANK_USER;
        f.tagPattern = new byte[] {(byte) 0xDE, (byte) 0xAD, (byte) 0xBE, (byte) 0xEF};
        f.tagPatternBitCount = 12;
        f.bitOffset = (short) 0x8020;
        f.filterAction = FILTER_ACTION.FILTER_ACTION_STATE_AWARE;
        f.truncateAction = TRUNCATE_ACTION.TRUNCATE_ACTION_TRUNCATE;
        f.filterActionParams = new FILTER_ACTION_PARAMS();
        f.filterActionParams.stateUnawareAction = unaware;
        if (target != null || aware != null) {
            f.filterActionParams.stateAwareParams = new STATE_AWARE_ACTION_PARAMS();
            f.filterActionParams.stateAwareParams.target = target;
            f.filterActionParams.stateAwareParams.stateAwareAction = aware;
        }
        return f;
    }

    /** Adds the filter on antenna 2 of a reader; returns the two action words of the record it got. */
    private static long[] actionWords(int reader, PRE_FILTER f) {
        assertEquals(0, ORLANatives.RFID_AddPreFilter(reader, 2, f, new int[1]));
        return fields(SimControl.blob("RFID_AddPreFilter", -1, "preFilter"), 24, 4, 28, 4);
    }

    @Test
    void recordFieldsSitAtTheirOffsetsAndTheIndexComesBackOnSuccess() {
        int reader = connect();
        SimControl.setOutput("RFID_AddPreFilter", new Bytes.Builder(4).u32(0, 0xFEDC_BA98L).build());
        int[] index = {-1};
        PRE_FILTER f = filter(STATE_UNAWARE_ACTION.STATE_UNAWARE_ACTION_NOT_SELECT, TARGET.TARGET_SL,
                STATE_AWARE_ACTION.STATE_AWARE_ACTION_NOT_INV_A2BB2A);
        assertEquals(0, ORLANatives.RFID_AddPreFilter(reader, 0x1_0002, f, index));

        assertEquals(0xFEDC_BA98, index[0]);
        Call call = Call.last("RFID_AddPreFilter");
        assertArrayEquals(new long[] {reader, 2}, new long[] {call.arg(0), call.arg(1)}, "the antenna as 16 bits");
        byte[] r = call.blob("preFilter");
        assertArrayEquals(new long[] {3, 12, 0x8020, 1, 4, 7, 2}, fields(r, 0, 4, 16, 2, 18, 2, 20, 4, 24, 4, 28, 4, 32, 4),
                "the state-aware target overwrites the state-unaware action at 24");
        assertArrayEquals(new byte[] {(byte) 0xDE, (byte) 0xAD}, call.blob("preFilter.tagPattern"));

        SimControl.setStatus("RFID_AddPreFilter", 7);
        int[] kept = {-5};
        assertEquals(7, ORLANatives.RFID_AddPreFilter(reader, 1, f, kept));
        assertEquals(-5, kept[0], "the reader wrote an index, but the status was not 0");
    }

    @Test
    void eachActionParameterIsSentOnlyWhenSet() {
        int reader = connect();
        assertEquals(3, actionWords(reader, filter(STATE_UNAWARE_ACTION.STATE_UNAWARE_ACTION_UNSELECT, null, null))[0]);
        assertArrayEquals(new long[] {2, 5}, actionWords(reader, filter(
                STATE_UNAWARE_ACTION.STATE_UNAWARE_ACTION_NOT_UNSELECT, null, STATE_AWARE_ACTION.STATE_AWARE_ACTION_INV_B)),
                "without a target the state-unaware action stays");
        assertEquals(3, actionWords(reader, filter(null, TARGET.TARGET_INVENTORIED_STATE_S3, null))[0]);
    }

    @Test
    void zeroBitsStillAllocateAndANullIndexArraySendsNoFilter() {
        int reader = connect();
        PRE_FILTER f = filter(null, null, null);
        f.tagPatternBitCount = 0;
        f.tagPattern = new byte[0];
        actionWords(reader, f);
        assertNotEquals(0L, Bytes.ptr(SimControl.blob("RFID_AddPreFilter", -1, "preFilter"), 8));
        assertArrayEquals(new byte[0], SimControl.blob("RFID_AddPreFilter", -1, "preFilter.tagPattern"));

        ORLANatives.RFID_AddPreFilter(reader, 1, f, null);
        Call call = Call.last("RFID_AddPreFilter");
        assertEquals(0L, call.arg(2));
        assertNotEquals(0L, call.arg(3), "the index still has a place to go");
        assertNull(call.blob("preFilter"));
    }
}
