package com.kovra.rfid.orla;

/** Filter on the peak RSSI of a tag, limits in dBm. */
public class RSSI_RANGE_FILTER {
    public short peakRSSILowerLimit;
    public short peakRSSIUpperLimit;
    public MATCH_RANGE matchRange = MATCH_RANGE.WITHIN_RANGE;
}
