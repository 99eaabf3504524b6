package com.kovra.rfid.orla;

/** Parameters of a block permalock; maskLength bytes of mask are sent. */
public class BLOCK_PERMALOCK_ACCESS_PARAMS {
    public MEMORY_BANK memoryBank = MEMORY_BANK.MEMORY_BANK_EPC;
    /** true to read the blocks' permalock state instead of locking them. */
    public boolean readLock;
    /** Offset into the bank, in bytes. */
    public short byteOffset;
    /** Number of bytes. */
    public short byteCount;
    /** Only the low 32 bits are sent. */
    public long accessPassword;
    /** Mask of the blocks to lock; must hold at least maskLength bytes. */
    public byte[] mask = new byte[0];
    /** Length of mask in bytes. */
    public short maskLength;
}
