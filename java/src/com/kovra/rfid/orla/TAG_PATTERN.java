package com.kovra.rfid.orla;

/** A bit pattern, optionally masked, at a bit offset of a memory bank. */
public class TAG_PATTERN {
    /** Bank the pattern applies to; must not be null. */
    public MEMORY_BANK memoryBank = MEMORY_BANK.MEMORY_BANK_EPC;
    /** Offset of the pattern in the bank, in bits (the EPC starts at bit 32 of the EPC bank). */
    public short bitOffset;
    /** Pattern bytes; must hold at least (tagPatternBitCount + 7) / 8 bytes. */
    public byte[] tagPattern = new byte[0];
    /** Length of the pattern in bits; 0 sends no pattern. */
    public short tagPatternBitCount;
    /** Mask bytes; must hold at least (tagMaskBitCount + 7) / 8 bytes. */
    public byte[] tagMask = new byte[0];
    /** Length of the mask in bits; 0 sends no mask. */
    public short tagMaskBitCount;
}
