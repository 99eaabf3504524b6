package com.kovra.rfid.orla;

/** Parameters of a read. */
public class READ_ACCESS_PARAMS {
    public MEMORY_BANK memoryBank = MEMORY_BANK.MEMORY_BANK_EPC;
    /** Offset into the bank, in bytes. */
    public short byteOffset;
    /** Number of bytes to read. */
    public short byteCount;
    /** Only the low 32 bits are sent. */
    public long accessPassword;
}
