package com.kovra.rfid.orla;

/** Parameters of a read. */
public class READ_ACCESS_PARAMS {
    public MEMORY_BANK memoryBank = MEMORY_BANK.MEMORY_BANK_EPC;
    public short byteOffset;
    public short byteCount;
    /** Only the low 32 bits are sent. */
    public long accessPassword;
}
