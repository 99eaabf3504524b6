package com.kovra.rfid.orla;

/** How many tags, and how many bytes of each, the reader API buffers (class name chosen by this SDK). */
public class TAG_STORAGE_SETTINGS {
    public int maxTagCount;
    public int maxMemoryBankByteCount;
    public int maxTagIDByteCount;
    /** Bit set of the tag fields that are kept. */
    public short tagFields;
    public boolean enableAccessReports;
    public boolean discardTagsOnInventoryStop;
}
