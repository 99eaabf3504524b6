package com.kovra.rfid.orla;

/** A select rule the reader applies on an antenna before singulation. */
public class PRE_FILTER {
    /** Bank the pattern applies to; must not be null. */
    public MEMORY_BANK memoryBank = MEMORY_BANK.MEMORY_BANK_EPC;
    /** Pattern bytes; must hold at least (tagPatternBitCount + 7) / 8 bytes. */
    public byte[] tagPattern = new byte[0];
    /** Length of the pattern in bits. */
    public short tagPatternBitCount;
    /** Offset of the pattern in the bank, in bits. */
    public short bitOffset;
    /** Must not be null. */
    public FILTER_ACTION filterAction = FILTER_ACTION.FILTER_ACTION_DEFAULT;
    /** Optional. */
    public FILTER_ACTION_PARAMS filterActionParams;
    /** Must not be null. */
    public TRUNCATE_ACTION truncateAction = TRUNCATE_ACTION.TRUNCATE_ACTION_UNSPECIFIED;
}
