package com.kovra.rfid.orla;

/** A bit pattern, optionally masked, at a bit offset of a memory bank. */
public class TAG_PATTERN {
    public MEMORY_BANK memoryBank = MEMORY_BANK.MEMORY_BANK_EPC;
    public short bitOffset;
    public byte[] tagPattern = new byte[0];
    public short tagPatternBitCount;
    public byte[] tagMask = new byte[0];
    public short tagMaskBitCount;
}
