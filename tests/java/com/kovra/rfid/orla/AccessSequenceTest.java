package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotEquals;

import com.kovra.rfid.orla.sim.Bytes;
import com.kovra.rfid.orla.sim.Call;
import com.kovra.rfid.orla.sim.SimControl;
import java.lang.reflect.Field;
import org.junit.jupiter.api.Test;

/** Access sequences: the operation records handed to the reader. */
class AccessSequenceTest extends NativeTest {

    private static final String ADD = "RFID_AddOperationToAccessSequence";
    /** No such reader: the simulator answers only what a test scripts. */
    private static final int NO_READER = 77;

    private static ACCESS_OPERATION operation(ACCESS_OPERATION_CODE code) {
        ACCESS_OPERATION op = new ACCESS_OPERATION();
        op.opCode = code;
        return op;
    }

    /** Adds op with status 0 scripted and returns the recorded call. */
    private static Call add(ACCESS_OPERATION op) {
        SimControl.queueStatus(ADD, 0);
        assertEquals(0, ORLANatives.RFID_AddOperationToAccessSequence(NO_READER, op, new int[1]));
        return Call.last(ADD);
    }

    /**
     * The parameter record the operation carried, after checking the 48-byte operation record around it: the code,
     * then nothing but the parameters pointer.
     */
    private static byte[] params(Call call, int code) {
        byte[] record = call.blob("operation");
        long pointer = Bytes.ptr(record, 8);
        assertNotEquals(0L, pointer, call + ": code " + code + " has parameters");
        assertArrayEquals(new Bytes.Builder(48).u32(0, code).ptr(8, pointer).build(), record, call + ": code " + code);
        return call.blob("operation.params");
    }

    /** An operation whose parameter fields are all null. */
    private static ACCESS_OPERATION withoutParameters(ACCESS_OPERATION_CODE code) throws IllegalAccessException {
        ACCESS_OPERATION op = operation(code);
        for (Field f : ACCESS_OPERATION.class.getFields()) {
            if (!f.getName().equals("opCode")) {
                f.set(op, null);
            }
        }
        return op;
    }

    @Test
    void addSendsTheRecordOrNullAndWritesTheIndexBackOnlyOnSuccess() {
        SimControl.setOutput(ADD, new Bytes.Builder(4).u32(0, 0x89AB_CDEFL).build());
        int[] index = {-5};
        SimControl.queueStatus(ADD, 0);
        assertEquals(0, ORLANatives.RFID_AddOperationToAccessSequence(-2, operation(
                ACCESS_OPERATION_CODE.ACCESS_OPERATION_RESERVED_15), index));
        Call call = Call.last(ADD);
        assertEquals(0xFFFF_FFFF_FFFF_FFFEL, call.arg(0));
        assertArrayEquals(new Bytes.Builder(48).u32(0, 15).build(), call.blob("operation"), "code 15, no parameters");
        assertArrayEquals(new byte[4], call.blob("index"), "the index starts at 0");
        assertEquals(0x89AB_CDEF, index[0]);

        SimControl.queueStatus(ADD, 9);
        index[0] = -5;
        assertEquals(9, ORLANatives.RFID_AddOperationToAccessSequence(NO_READER, new ACCESS_OPERATION(), index));
        assertEquals(-5, index[0], "left alone on failure");

        SimControl.queueStatus(ADD, 0);
        assertEquals(0, ORLANatives.RFID_AddOperationToAccessSequence(NO_READER, null, index));
        assertEquals(0L, Call.last(ADD).arg(1), "a null operation is a NULL record");
        assertEquals(0x89AB_CDEF, index[0], "the index array is pinned without an operation too");
    }

    /**
     * Each code fills a record of its own size from its own field (block write from the write parameters), and
     * the zeroed ones keep their reserved tail at zero; the fields themselves are filled as for the single
     * operations. Read, erase, lock and kill records keep what the heap gave them.
     */
    @Test
    void eachCodeFillsItsOwnRecordFromItsOwnField() throws ReflectiveOperationException {
        // code, its parameter field, record size, password offset, first byte of the zeroed tail (-1: not zeroed)
        Object[][] rows = {{0, "readAccessParamsStruct", 48, 8, -1}, {1, "writeAccessParamsStruct", 56, 20, 24},
            {2, "lockAccessParamsStruct", 56, 20, -1}, {3, "killAccessParamsStruct", 40, 0, -1},
            {4, "writeAccessParamsStruct", 56, 20, 24}, {5, "blockEraseAccessParamsStruct", 48, 8, -1},
            {6, "recommissionAccessParamsStruct", 40, 0, 8}, {8, "setEASParamsStruct", 40, 0, 5},
            {9, "readProtectParamsStruct", 40, 0, 4}, {10, "resetReadProtectParamsStruct", 40, 0, 4},
            {20, "QTWriteParamsStruct", 80, 0, 10}, {21, "QTReadParamsStruct", 40, 0, 4},
            {22, "nxpChangeConfigParamsStruct", 40, 0, 6}};
        for (Object[] row : rows) {
            int code = (int) row[0];
            int size = (int) row[2];
            ACCESS_OPERATION op = operation(ACCESS_OPERATION_CODE.values()[code]);
            Object params = ACCESS_OPERATION.class.getField((String) row[1]).get(op);
            for (Field f : params.getClass().getFields()) {
                if (f.getName().endsWith("Password")) {
                    f.setLong(params, 0x1_0000_0100L + code);  // only the other fields' passwords stay 0
                }
            }
            byte[] record = params(add(op), code);
            assertEquals(size, record.length, "code " + code);
            assertEquals(0x100 + code, Bytes.u32(record, (int) row[3]), "code " + code);
            if ((int) row[4] >= 0) {
                assertZero(record, (int) row[4], size);
            }
        }
    }

    @Test
    void blockPermalockAttachesAMaskBufferThatOutlivesTheCall() {
        ACCESS_OPERATION op = operation(ACCESS_OPERATION_CODE.ACCESS_OPERATION_BLOCK_PERMALOCK);
        BLOCK_PERMALOCK_ACCESS_PARAMS p = op.blockPermalockAccessParamsStruct;
        p.memoryBank = MEMORY_BANK.MEMORY_BANK_USER;
        p.readLock = true;
        p.byteOffset = (short) 0x8000;
        p.byteCount = 7;
        p.accessPassword = 0x3_0000_0033L;
        p.mask = new byte[] {(byte) 0xAA, 0x55, 0x11};
        p.maskLength = 2;
        Call call = add(op);
        byte[] record = params(call, 7);
        assertArrayEquals(new Bytes.Builder(64).u32(0, 3).u8(4, 1).u16(6, 0x8000).u16(8, 7).u32(12, 0x33)
                .ptr(16, Bytes.ptr(record, 16)).u16(24, 2).build(), record);
        assertArrayEquals(new byte[] {(byte) 0xAA, 0x55}, call.blob("operation.params.mask"));

        p.readLock = false;
        p.mask = null;
        p.maskLength = 0;
        record = params(add(op), 7);
        assertEquals(0, Bytes.u8(record, 4));
        assertNotEquals(0L, Bytes.ptr(record, 16), "an empty mask buffer, the Java mask not read");

        p.mask = new byte[16];
        for (int i = 0; i < 16; i++) {
            p.mask[i] = (byte) (0xC0 + i);
        }
        p.maskLength = 16;
        long mask = Bytes.ptr(params(add(op), 7), 16);
        assertArrayEquals(p.mask, SimControl.read(mask, 16), "the mask outlives the call");
    }

    @Test
    void codesWithoutARowReadNoParametersAndSendANullPointer() throws IllegalAccessException {
        for (ACCESS_OPERATION_CODE code : ACCESS_OPERATION_CODE.values()) {
            int ordinal = code.ordinal();
            if (ordinal <= 10 || (ordinal >= 20 && ordinal <= 22)) {
                continue;
            }
            ACCESS_OPERATION op = withoutParameters(code);
            assertArrayEquals(new Bytes.Builder(48).u32(0, ordinal).build(), add(op).blob("operation"), code.name());
        }
    }
}
