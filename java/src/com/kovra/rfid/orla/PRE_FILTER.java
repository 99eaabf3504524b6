package com.kovra.rfid.orla;

/** A select rule the reader applies on an antenna before singulation. */
public class PRE_FILTER {
    public MEMORY_BANK memoryBank = MEMORY_BANK.MEMORY_BANK_EPC;
    public byte[] tagPattern = new byte[0];
    public short tagPatternBitCount;
    public short bitOffset;
    public FILTER_ACTION filterAction = FILTER_ACTION.FILTER_ACTION_DEFAULT;
    /** Optional. */
    public FILTER_ACTION_PARAMS filterActionParams;
    public TRUNCATE_ACTION truncateAction = TRUNCATE_ACTION.TRUNCATE_ACTION_UNSPECIFIED;
}
