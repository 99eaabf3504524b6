package com.kovra.rfid.orla;

/** Parameters of a Gen2v2 untraceable (class name chosen by this SDK). */
public class UNTRACEABLE_PARAMS {
    public boolean assertU;
    public boolean hideEPC;
    public byte EPCLength;
    public TID_HIDE_STATE hideTID = TID_HIDE_STATE.HIDE_TID_NONE;
    public boolean hideUser;
    public TAG_OPERATING_RANGE operatingRange = TAG_OPERATING_RANGE.TAG_OPERATING_RANGE_NORMAL;
    /** Only the low 32 bits are sent. */
    public long accessPassword;
}
