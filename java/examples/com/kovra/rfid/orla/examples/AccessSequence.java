package com.kovra.rfid.orla.examples;

import com.kovra.rfid.orla.ACCESS_OPERATION;
import com.kovra.rfid.orla.ACCESS_OPERATION_CODE;
import com.kovra.rfid.orla.MEMORY_BANK;
import com.kovra.rfid.orla.ORLANatives;
import com.kovra.rfid.orla.STOP_TRIGGER_TYPE;
import com.kovra.rfid.orla.TRIGGER_INFO;

/**
 * An access sequence: operations that the reader applies to every tag it singulates.
 *
 * <p>Builds a sequence of two operations (read the TID, write the first word of user memory), runs it for
 * half a second, fetches the tags it reported with the result of each operation, and reads the result counts
 * of the run.
 *
 * <p>Usage: {@code AccessSequence [host]}; by default the simulated reader.
 */
public final class AccessSequence {

    /** How long the sequence runs, in milliseconds. */
    private static final int RUN_MS = 500;

    private AccessSequence() {
    }

    public static void main(String[] args) {
        ExampleReader.run(args, AccessSequence::runSequence);
    }

    private static void runSequence(ExampleReader reader) {
        reader.check("initialize access sequence", ORLANatives.RFID_InitializeAccessSequence(reader.handle));
        try {
            // Each operation sets its code and fills the parameter field that belongs to it.
            ACCESS_OPERATION readTid = new ACCESS_OPERATION();
            readTid.opCode = ACCESS_OPERATION_CODE.ACCESS_OPERATION_READ;
            readTid.readAccessParamsStruct.memoryBank = MEMORY_BANK.MEMORY_BANK_TID;
            readTid.readAccessParamsStruct.byteOffset = 0;
            readTid.readAccessParamsStruct.byteCount = 12;
            int readIndex = add(reader, "add read TID", readTid);

            ACCESS_OPERATION writeUser = new ACCESS_OPERATION();
            writeUser.opCode = ACCESS_OPERATION_CODE.ACCESS_OPERATION_WRITE;
            writeUser.writeAccessParamsStruct.memoryBank = MEMORY_BANK.MEMORY_BANK_USER;
            writeUser.writeAccessParamsStruct.byteOffset = 0;
            writeUser.writeAccessParamsStruct.writeData = ExampleReader.bytes("0A0B");
            writeUser.writeAccessParamsStruct.writeDataLength = 2;
            int writeIndex = add(reader, "add write user memory", writeUser);
            System.out.printf("two distinct operation indices: %s%n", readIndex != writeIndex ? "yes" : "no");

            // Run on every tag (no access filter), on the default antennas, for RUN_MS milliseconds.
            TRIGGER_INFO trigger = new TRIGGER_INFO();
            trigger.stopTrigger.type = STOP_TRIGGER_TYPE.STOP_TRIGGER_TYPE_DURATION;
            trigger.stopTrigger.value.duration = RUN_MS;
            reader.check("perform access sequence", ORLANatives.RFID_PerformAccessSequence(reader.handle, null,
                    null, trigger));
            sleep(RUN_MS);
            reader.check("stop access sequence", ORLANatives.RFID_StopAccessSequence(reader.handle));
            report(reader);

            int[] first = new int[1];
            int[] second = new int[1];
            reader.check("last access result", ORLANatives.RFID_GetLastAccessResult(reader.handle, first, second));
            System.out.printf("  counts %d and %d%n", first[0], second[0]);
        } finally {
            reader.check("deinitialize access sequence",
                    ORLANatives.RFID_DeinitializeAccessSequence(reader.handle));
        }
    }

    /** Adds an operation and returns the index the reader gave it. */
    private static int add(ExampleReader reader, String step, ACCESS_OPERATION operation) {
        int[] index = new int[1];
        reader.check(step, ORLANatives.RFID_AddOperationToAccessSequence(reader.handle, operation, index));
        System.out.printf("  operation index %d%n", index[0]);
        return index[0];
    }

    /** Prints each tag the sequence reported: its ID, which operation, its status and the data read. */
    private static void report(ExampleReader reader) {
        int total = reader.fetchTags(tag ->
                // Codes and statuses arrive as ordinals: enumOPCode is that of an ACCESS_OPERATION_CODE.
                System.out.printf("  tag %s: %s status %d data %s%n", tag.tagID,
                        ACCESS_OPERATION_CODE.values()[tag.enumOPCode], tag.enumOPStatus, tag.memoryBankData));
        System.out.printf("%d results reported%n", total);
    }

    private static void sleep(int milliseconds) {
        try {
            Thread.sleep(milliseconds);
        } catch (InterruptedException e) {
            Thread.currentThread().interrupt();
        }
    }
}
