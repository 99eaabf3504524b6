package com.kovra.rfid.orla;

/** A calendar time as the reader reports it; every member is a 16-bit value. */
public class SYSTEMTIME {
    public short Year;
    public short Month;
    public short DayOfWeek;
    public short Day;
    public short Hour;
    public short Minute;
    public short Second;
    public short Milliseconds;
}
