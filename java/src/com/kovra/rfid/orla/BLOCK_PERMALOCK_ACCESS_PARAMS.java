package com.kovra.rfid.orla;

/** Parameters of a block permalock; maskLength bytes of mask are sent. */
public class BLOCK_PERMALOCK_ACCESS_PARAMS {
    public MEMORY_BANK memoryBank = MEMORY_BANK.MEMORY_BANK_EPC;
    public boolean readLock;
    public short byteOffset;
    public short byteCount;
    /** Only the low 32 bits are sent. */
    public long accessPassword;
    public byte[] mask = new byte[0];
    public short maskLength;
}
