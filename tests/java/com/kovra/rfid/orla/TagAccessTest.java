package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotEquals;

import com.kovra.rfid.orla.sim.Bytes;
import com.kovra.rfid.orla.sim.Call;
import com.kovra.rfid.orla.sim.SimControl;
import com.kovra.rfid.orla.sim.SimReader;
import java.util.Arrays;

/** Base of the single tag access tests (Gen2, NXP and Impinj, and Gen2v2 operations): their shared fixtures. */
abstract class TagAccessTest extends NativeTest {

    /** No such reader, and negative: the handle must arrive sign-extended. */
    static final int NO_READER = -2;
    static final long NO_READER_RAW = 0xFFFF_FFFF_FFFF_FFFEL;
    static final String TAG_ID = "3000abCDef12";
    static final byte[] TAG_BYTES = {0x30, 0x00, (byte) 0xAB, (byte) 0xCD, (byte) 0xEF, 0x12};
    /** A password above 32 bits: only 0x87654321 may reach the reader. */
    static final long PASSWORD = 0x1_8765_4321L;

    static ANTENNA_INFO twoAntennas() {
        return new ANTENNA_INFO(new short[] {3, (short) 0x8001},
                new OPERATION_QUALIFIER[] {OPERATION_QUALIFIER.LOCATE_TAG, OPERATION_QUALIFIER.C1G2_OPERATION});
    }

    static void assertTwoAntennas(Call call) {
        assertEquals(2, Bytes.u32(call.blob("antennaInfo"), 8));
        assertArrayEquals(new long[] {3, 0x8001}, fields(call.blob("antennaInfo.antennaList"), 0, 2, 2, 2));
        assertArrayEquals(new long[] {2, 0}, fields(call.blob("antennaInfo.antennaOpList"), 0, 4, 4, 4));
    }

    /** The call's parameter record, checked zero from zeroFrom to its end. */
    static byte[] sentParams(Call call, int zeroFrom) {
        byte[] record = call.blob("params");
        assertZero(record, zeroFrom, record.length);
        return record;
    }

    /**
     * Runs an operation that returns a tag three times on a connected reader:
     * with a scripted result tag on success (its seen times in the UTC form
     * asked for), with the same result on failure (the simulator still
     * writes it; the record is still given back), and without a tag object. Returns the Java tag of the
     * successful run.
     */
    static TAG_DATA checkResultTag(String fn, byte[] result, ResultTagOperation op) {
        int handle = connect();
        SimControl.setOutput(fn, result);
        TAG_DATA tag = markedTag();
        assertEquals(0, op.run(handle, tag, true));
        Call call = Call.last(fn);
        assertNotEquals(0L, call.arg(6), "a tag record was passed");
        assertArrayEquals(new long[] {handle, call.arg(6)}, SimControl.args("RFID_DeallocateTag", -1),
                "the same record is given back");
        assertEquals(0, SimReader.liveTagRecords(handle));
        assertEquals(0x7FFE, tag.seenTime.utcTime.firstSeenTimeStamp.Year, fn + ": the UTC form");
        assertEquals(77, tag.seenTime.upTime.firstSeenTimeStamp, fn + ": not the up-time form");

        SimControl.setStatus(fn, FAILED);
        assertEquals(FAILED, op.run(handle, markedTag(), true));
        assertEquals(2, SimControl.count("RFID_DeallocateTag"), "given back on failure too");
        assertEquals(0, SimReader.liveTagRecords(handle));

        SimControl.setStatus(fn, 0);
        assertEquals(0, op.run(handle, null, true));
        assertEquals(0L, Call.last(fn).arg(6), "no tag object, no tag record");
        assertArrayEquals(new long[] {2, 2}, new long[] {SimControl.count("RFID_AllocateTag"),
            SimControl.count("RFID_DeallocateTag")});
        return tag;
    }

    /** An operation with a tag ID, called with the given parameters, filter, antennas and tag (each may be null). */
    interface ObjectsOperation {
        int run(int handle, Object params, ACCESS_FILTER filter, ANTENNA_INFO antennas, TAG_DATA tag);
    }

    /**
     * Runs op on a connected reader with an object in each place, then with null in each (but the parameters,
     * where the operation requires them): the tag ID arrives as bytes with its length, every pointer after the
     * length is set in the first call, the antennas in their own place, and NULL in the second; the reserved
     * last one is NULL in both.
     */
    static void assertObjectsOrNulls(String fn, Object params, boolean paramsOptional, ObjectsOperation op) {
        int handle = connect();
        op.run(handle, params, new ACCESS_FILTER(), twoAntennas(), new TAG_DATA());
        Call call = Call.last(fn);
        assertArrayEquals(TAG_BYTES, call.blob("tagID"), fn + ": upper and lower case digits alike");
        long[] args = call.args();
        assertEquals(6L, args[2], fn + ": the tag ID length");
        for (int i = 3; i < args.length - 1; i++) {
            assertNotEquals(0L, args[i], fn + ": argument " + i);
        }
        assertEquals(0L, args[args.length - 1], fn + ": reserved");
        assertTwoAntennas(call);

        op.run(handle, paramsOptional ? null : params, null, null, null);
        args = Call.last(fn).args();
        int from = paramsOptional ? 3 : 4;
        assertArrayEquals(new long[args.length - from], Arrays.copyOfRange(args, from, args.length), fn + ": NULLs");
    }

    static void assertObjectsOrNulls(String fn, Object params, ObjectsOperation op) {
        assertObjectsOrNulls(fn, params, true, op);
    }

    /** A tag-returning operation with a tag ID, called as op(handle, tag, utcTime). */
    interface ResultTagOperation {
        int run(int handle, TAG_DATA tag, boolean utcTime);
    }

    /** A scripted result tag: EPC 3000 1234, opCode and a result record behind pOpResult. */
    static byte[] resultTag(int opCode, byte[] opResult) {
        return fullRecord(new byte[] {0x30, 0x00, 0x12, 0x34}).u32(80, opCode)
                .ptr(144, SimControl.alloc(opResult)).build();
    }
}
