package com.kovra.rfid.orla;

/** A time of day. */
public class TIMEOFDAY {
    public short Hour;
    public short Minute;
    public short Second;
}
