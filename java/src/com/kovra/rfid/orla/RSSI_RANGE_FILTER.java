package com.kovra.rfid.orla;

/** Filter on the peak RSSI of a tag, limits in dBm. */
public class RSSI_RANGE_FILTER {
    /** Lower limit in dBm, -128 to 127 (only the low 8 bits are sent). */
    public short peakRSSILowerLimit;
    /** Upper limit in dBm, -128 to 127 (only the low 8 bits are sent). */
    public short peakRSSIUpperLimit;
    public MATCH_RANGE matchRange = MATCH_RANGE.WITHIN_RANGE;
}
