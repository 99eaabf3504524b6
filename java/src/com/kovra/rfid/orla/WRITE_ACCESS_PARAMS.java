package com.kovra.rfid.orla;

/** Parameters of a write or block write; writeDataLength bytes of writeData are sent. */
public class WRITE_ACCESS_PARAMS {
    public MEMORY_BANK memoryBank = MEMORY_BANK.MEMORY_BANK_EPC;
    public short byteOffset;
    public byte[] writeData = new byte[0];
    public short writeDataLength;
    /** Only the low 32 bits are sent. */
    public long accessPassword;
}
