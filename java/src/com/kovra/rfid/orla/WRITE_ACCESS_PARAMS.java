package com.kovra.rfid.orla;

/** Parameters of a write or block write; writeDataLength bytes of writeData are sent. */
public class WRITE_ACCESS_PARAMS {
    public MEMORY_BANK memoryBank = MEMORY_BANK.MEMORY_BANK_EPC;
    /** Offset into the bank, in bytes. */
    public short byteOffset;
    /** Data to write; must hold at least writeDataLength bytes. */
    public byte[] writeData = new byte[0];
    /** Number of bytes to write. */
    public short writeDataLength;
    /** Only the low 32 bits are sent. */
    public long accessPassword;
}
