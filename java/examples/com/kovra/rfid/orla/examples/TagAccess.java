package com.kovra.rfid.orla.examples;

import com.kovra.rfid.orla.LOCK_ACCESS_PARAMS;
import com.kovra.rfid.orla.MEMORY_BANK;
import com.kovra.rfid.orla.ORLANatives;
import com.kovra.rfid.orla.READ_ACCESS_PARAMS;
import com.kovra.rfid.orla.TAG_DATA;
import com.kovra.rfid.orla.WRITE_ACCESS_PARAMS;
import com.kovra.rfid.orla.WRITE_FIELD_ACCESS_PARAMS;

import java.util.Arrays;

/**
 * Tag access: read, write and lock the memory of one tag.
 *
 * <p>Reads the tag's EPC back from its EPC bank, writes four bytes into its user memory and reads them back,
 * then gives the tag an access password and locks its user memory so that writing it takes that password.
 *
 * <p>Usage: {@code TagAccess [host [tagID]]}; by default the simulated reader and one of its built-in tags.
 */
public final class TagAccess {

    /** A built-in tag of the simulated reader with user memory and no access password. */
    private static final String DEFAULT_TAG = "303425B4C000000000000003";
    /** The data written into user memory. */
    private static final String NEW_USER_DATA = "CAFEF00D";
    /** The access password the example gives the tag. */
    private static final long NEW_ACCESS_PASSWORD = 0x5EC0_0001L;
    /** The EPC starts after the CRC and PC words of the EPC bank: byte offset 4. */
    private static final short EPC_BYTE_OFFSET = 4;

    /** Gen2 lockable fields, in the order of {@link LOCK_ACCESS_PARAMS#enumPrivilege}. */
    private static final int USER_MEMORY_FIELD = 4;
    /** Lock privilege: leave the field's lock as it is. */
    private static final short LOCK_PRIVILEGE_NONE = 0;
    /** Lock privilege: writing the field takes the access password. */
    private static final short LOCK_PRIVILEGE_READ_WRITE = 1;

    private TagAccess() {
    }

    public static void main(String[] args) {
        String tagID = args.length > 1 ? args[1] : DEFAULT_TAG;
        ExampleReader.run(args, reader -> access(reader, tagID));
    }

    private static void access(ExampleReader reader, String tagID) {
        System.out.printf("tag %s%n", tagID);
        // A tag is named by its ID in hexadecimal and the ID's length in bytes.
        int tagIDLength = tagID.length() / 2;

        // Read: the EPC bank holds the tag's ID after its CRC and PC words.
        String epc = read(reader, tagID, MEMORY_BANK.MEMORY_BANK_EPC, EPC_BYTE_OFFSET, tagIDLength, 0);
        System.out.printf("EPC bank holds %s: %s%n", epc, epc.equals(tagID) ? "matches the tag ID" : "differs");

        // Write four bytes at the start of user memory: writeDataLength bytes of writeData go to the tag.
        WRITE_ACCESS_PARAMS write = new WRITE_ACCESS_PARAMS();
        write.memoryBank = MEMORY_BANK.MEMORY_BANK_USER;
        write.byteOffset = 0;
        write.writeData = ExampleReader.bytes(NEW_USER_DATA);
        write.writeDataLength = (short) write.writeData.length;
        write.accessPassword = 0;
        reader.check("write user memory", ORLANatives.RFID_Write(reader.handle, tagID, tagIDLength, write, null,
                null));

        // Read them back: the reader returns memory as upper-case hexadecimal text.
        String readBack = read(reader, tagID, MEMORY_BANK.MEMORY_BANK_USER, (short) 0, write.writeDataLength, 0);
        System.out.printf("wrote %s, read back %s: %s%n", NEW_USER_DATA, readBack,
                readBack.equals(NEW_USER_DATA) ? "match" : "differ");

        // Give the tag an access password (4 bytes in the reserved bank), sent with the current one (0).
        WRITE_FIELD_ACCESS_PARAMS password = new WRITE_FIELD_ACCESS_PARAMS();
        password.writeData = ExampleReader.bytes(String.format("%08X", NEW_ACCESS_PASSWORD));
        password.writeDataLength = (short) password.writeData.length;
        password.accessPassword = 0;
        reader.check("write access password", ORLANatives.RFID_WriteAccessPassword(reader.handle, tagID,
                tagIDLength, password, null));

        // Lock: one privilege per lockable field (always five); only user memory changes.
        LOCK_ACCESS_PARAMS lock = new LOCK_ACCESS_PARAMS();
        Arrays.fill(lock.enumPrivilege, LOCK_PRIVILEGE_NONE);
        lock.enumPrivilege[USER_MEMORY_FIELD] = LOCK_PRIVILEGE_READ_WRITE;
        lock.accessPassword = NEW_ACCESS_PASSWORD;
        reader.check("lock user memory", ORLANatives.RFID_Lock(reader.handle, tagID, tagIDLength, lock, null,
                null));
    }

    /**
     * Reads {@code byteCount} bytes at {@code byteOffset} of a bank and returns them as hexadecimal text. The
     * tag object receives the tag as well, with its antenna, signal strength and seen times.
     */
    private static String read(ExampleReader reader, String tagID, MEMORY_BANK bank, short byteOffset,
            int byteCount, long accessPassword) {
        READ_ACCESS_PARAMS params = new READ_ACCESS_PARAMS();
        params.memoryBank = bank;
        params.byteOffset = byteOffset;
        params.byteCount = (short) byteCount;
        params.accessPassword = accessPassword;
        TAG_DATA tag = new TAG_DATA();
        // No access filter and no antenna selection (null): the reader's defaults. The two reserved
        // arguments are never read; true asks for calendar (UTC) seen times.
        reader.check("read " + bank, ORLANatives.RFID_Read(reader.handle, tagID, tagID.length() / 2, params,
                null, null, tag, null, null, true));
        System.out.printf("  %d bytes at byte %d, seen on antenna %d at %d dBm%n", tag.memoryBankDataLength,
                tag.memoryBankDataByteOffset, tag.antennaID, tag.peakRSSI);
        return tag.memoryBankData;
    }
}
