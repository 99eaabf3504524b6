package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotEquals;
import static org.junit.jupiter.api.Assertions.assertNull;

import com.kovra.rfid.orla.sim.Bytes;
import com.kovra.rfid.orla.sim.Call;
import com.kovra.rfid.orla.sim.SimControl;
import java.lang.reflect.Field;
import org.junit.jupiter.api.Test;

/** Access sequences: the operation records handed to the reader, the sequence run and its results. */
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

    @Test
    void gen2OperationsFillTheirRecordsBlockWriteFromTheWriteParameters() {
        // Read, erase, lock and kill records keep what the heap gave them around their fields.
        ACCESS_OPERATION op = operation(ACCESS_OPERATION_CODE.ACCESS_OPERATION_READ);
        op.readAccessParamsStruct.memoryBank = MEMORY_BANK.MEMORY_BANK_USER;
        op.readAccessParamsStruct.byteOffset = (short) 0x8001;
        op.readAccessParamsStruct.byteCount = -1;
        op.readAccessParamsStruct.accessPassword = 0x1_2345_6789L;
        byte[] read = params(add(op), 0);
        assertEquals(48, read.length);
        assertArrayEquals(new long[] {3, 0x8001, 0xFFFF, 0x2345_6789}, fields(read, 0, 4, 4, 2, 6, 2, 8, 4));

        op = operation(ACCESS_OPERATION_CODE.ACCESS_OPERATION_BLOCK_ERASE);
        op.blockEraseAccessParamsStruct.memoryBank = MEMORY_BANK.MEMORY_BANK_TID;
        op.blockEraseAccessParamsStruct.byteOffset = 4;
        op.blockEraseAccessParamsStruct.byteCount = (short) 0xFFFE;
        op.blockEraseAccessParamsStruct.accessPassword = -1L;
        byte[] erase = params(add(op), 5);
        assertEquals(48, erase.length);
        assertArrayEquals(new long[] {2, 4, 0xFFFE, 0xFFFF_FFFFL}, fields(erase, 0, 4, 4, 2, 6, 2, 8, 4));

        op = operation(ACCESS_OPERATION_CODE.ACCESS_OPERATION_LOCK);
        op.lockAccessParamsStruct.enumPrivilege = new short[] {-1, 1, 2, 3, 4, 0x7777};
        op.lockAccessParamsStruct.accessPassword = 0x1_0000_0005L;
        byte[] lock = params(add(op), 2);
        assertEquals(56, lock.length);
        assertArrayEquals(new long[] {0xFFFF, 1, 2, 3, 4, 5}, fields(lock, 0, 4, 4, 4, 8, 4, 12, 4, 16, 4, 20, 4),
                "five privileges widened unsigned, then the password");

        op = operation(ACCESS_OPERATION_CODE.ACCESS_OPERATION_KILL);
        op.killAccessParamsStruct.killPassword = 0xF_FEDC_BA98L;
        byte[] kill = params(add(op), 3);
        assertEquals(40, kill.length);
        assertEquals(0xFEDC_BA98L, Bytes.u32(kill, 0));

        op = operation(ACCESS_OPERATION_CODE.ACCESS_OPERATION_RECOMMISSION);
        op.recommissionAccessParamsStruct.killPassword = 0x1_8000_0000L;
        op.recommissionAccessParamsStruct.opCode =
                RECOMMISSION_OPERATION_CODE.RECOMMISSION_DISABLE_USER_MEMORY_PASSWORD;
        assertArrayEquals(new Bytes.Builder(40).u32(0, 0x8000_0000L).u32(4, 5).build(), params(add(op), 6));

        op = operation(ACCESS_OPERATION_CODE.ACCESS_OPERATION_WRITE);
        op.writeAccessParamsStruct.memoryBank = MEMORY_BANK.MEMORY_BANK_TID;
        op.writeAccessParamsStruct.byteOffset = -2;
        op.writeAccessParamsStruct.writeData = new byte[] {0x11, 0x22, (byte) 0x80, 0x44};
        op.writeAccessParamsStruct.writeDataLength = 3;
        op.writeAccessParamsStruct.accessPassword = 0xAB_0000_0001L;
        for (int code : new int[] {1, 4}) {
            op.opCode = ACCESS_OPERATION_CODE.values()[code];
            Call call = add(op);
            byte[] write = params(call, code);
            assertArrayEquals(new Bytes.Builder(56).u32(0, 2).u16(4, 0xFFFE).ptr(8, Bytes.ptr(write, 8)).u16(16, 3)
                    .u32(20, 1).build(), write, "code " + code);
            assertArrayEquals(new byte[] {0x11, 0x22, (byte) 0x80}, call.blob("operation.params.writeData"));
        }
    }

    @Test
    void blockPermalockAttachesAMaskBufferThatStaysAllocatedWithTheOperationRecord() {
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
        call = add(op);
        assertArrayEquals(call.blob("operation"), SimControl.read(call.arg(1), 48), "the operation record is kept");
        long mask = Bytes.ptr(call.blob("operation.params"), 16);
        assertArrayEquals(p.mask, SimControl.read(mask, 16), "so is the mask");
    }

    @Test
    void chipOperationsFillZeroedRecords() {
        ACCESS_OPERATION op = operation(ACCESS_OPERATION_CODE.ACCESS_OPERATION_NXP_SET_EAS);
        op.setEASParamsStruct.accessPassword = 0x1_0000_00FFL;
        op.setEASParamsStruct.EASState = true;
        assertArrayEquals(new Bytes.Builder(40).u32(0, 0xFF).u8(4, 1).build(), params(add(op), 8));

        op = operation(ACCESS_OPERATION_CODE.ACCESS_OPERATION_NXP_READ_PROTECT);
        op.readProtectParamsStruct.accessPassword = 0xDEAD_BEEF_0000_0009L;
        assertArrayEquals(new Bytes.Builder(40).u32(0, 9).build(), params(add(op), 9));

        op = operation(ACCESS_OPERATION_CODE.ACCESS_OPERATION_NXP_RESET_READ_PROTECT);
        op.resetReadProtectParamsStruct.accessPassword = 0x2_FFFF_FFFFL;
        assertArrayEquals(new Bytes.Builder(40).u32(0, 0xFFFF_FFFFL).build(), params(add(op), 10));

        op = operation(ACCESS_OPERATION_CODE.ACCESS_OPERATION_IMPINJ_QT_WRITE);
        op.QTWriteParamsStruct.accessPassword = 7;
        op.QTWriteParamsStruct.qtPersist = true;
        op.QTWriteParamsStruct.qtData.qtControlData = (short) 0x8000;
        assertArrayEquals(new Bytes.Builder(80).u32(0, 7).u8(4, 1).u16(8, 0x8000).build(), params(add(op), 20));

        op = operation(ACCESS_OPERATION_CODE.ACCESS_OPERATION_IMPINJ_QT_READ);
        op.QTReadParamsStruct.accessPassword = 0x1_0000_0021L;
        assertArrayEquals(new Bytes.Builder(40).u32(0, 0x21).build(), params(add(op), 21));

        op = operation(ACCESS_OPERATION_CODE.ACCESS_OPERATION_NXP_CHANGE_CONFIG);
        op.nxpChangeConfigParamsStruct.accessPassword = 22;
        op.nxpChangeConfigParamsStruct.ChangeConfigWord = (short) 0xFFFE;
        assertArrayEquals(new Bytes.Builder(40).u32(0, 22).u16(4, 0xFFFE).build(), params(add(op), 22));
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

    @Test
    void performPassesFilterAntennasAndTriggerOrNulls() {
        SimControl.setStatus("RFID_PerformAccessSequence", -7);
        assertEquals(-7, ORLANatives.RFID_PerformAccessSequence(-3, null, null, null));
        assertArrayEquals(new long[] {-3L, 0, 0, 0, 0}, SimControl.args("RFID_PerformAccessSequence", -1));

        ACCESS_FILTER filter = new ACCESS_FILTER();
        filter.tagPatternA = new TAG_PATTERN();
        filter.tagPatternA.tagPattern = new byte[] {0x30, 0x08};
        filter.tagPatternA.tagPatternBitCount = 16;
        TRIGGER_INFO trigger = new TRIGGER_INFO();
        trigger.startTrigger.type = START_TRIGGER_TYPE.START_TRIGGER_TYPE_PERIODIC;
        trigger.startTrigger.value.periodic.startTime.Year = 2031;
        trigger.stopTrigger.type = STOP_TRIGGER_TYPE.STOP_TRIGGER_TYPE_DURATION;
        trigger.stopTrigger.value.duration = 1500;
        trigger.tagReportTrigger = 3;
        ORLANatives.RFID_PerformAccessSequence(NO_READER, filter,
                new ANTENNA_INFO(new short[] {1, 2, 3, 4, 5, 6, 7, 8}), trigger);
        Call call = Call.last("RFID_PerformAccessSequence");
        assertArrayEquals(new byte[] {0x30, 0x08}, call.blob("accessFilter.tagPatternA.tagPattern"));
        assertNull(call.blob("accessFilter.tagPatternB"));
        assertEquals(8, fields(call.blob("antennaInfo.antennaList"), 14, 2)[0], "room for 8 antennas");
        assertArrayEquals(new long[] {1, 1, 1500, 3, 0}, fields(call.blob("triggerInfo"), 0, 4, 24, 4, 28, 4, 36, 4, 40, 8));
        assertEquals(2031, fields(call.blob("triggerInfo.startTrigger.startTime"), 0, 2)[0], "its own time block");
        assertArrayEquals(new byte[40], call.blob("triggerInfo.reportTriggers"), "the report block starts zeroed");
        assertEquals(0L, call.arg(4), "the reserved argument is NULL");
    }
}
