package com.kovra.rfid.orla;

/** Time zones of the reader (class name chosen by this SDK). */
public class TIME_ZONE_LIST {
    public short numTimeZones;
    public short activeTimeZoneIndex;
    /** All names, separated by "#". */
    public String TimeZoneList;
}
