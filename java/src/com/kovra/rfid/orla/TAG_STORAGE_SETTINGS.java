package com.kovra.rfid.orla;

/** How many tags, and how many bytes of each, the reader API buffers (class name chosen by this SDK). */
public class TAG_STORAGE_SETTINGS {
    /** Most tags buffered. */
    public int maxTagCount;
    /** Most memory bank bytes kept per tag. */
    public int maxMemoryBankByteCount;
    /** Most identifier bytes kept per tag. */
    public int maxTagIDByteCount;
    /** Bit set of the tag fields that are kept. */
    public short tagFields;
    /** true to report the tags of access operations. */
    public boolean enableAccessReports;
    /** true to discard the buffered tags when an inventory stops. */
    public boolean discardTagsOnInventoryStop;
}
