package com.kovra.rfid.orla;

/** Which tags an access operation applies to: up to two tag patterns and an optional RSSI range. */
public class ACCESS_FILTER {
    /** Sent to the reader as it stands; must not be null. */
    public STRUCT_INFO structInfo = new STRUCT_INFO();
    /** Optional. */
    public TAG_PATTERN tagPatternA;
    /** Optional. */
    public TAG_PATTERN tagPatternB;
    /** How the two patterns combine; must not be null. */
    public FILTER_MATCH_PATTERN matchPattern = FILTER_MATCH_PATTERN.A_AND_B;
    /** Optional. */
    public RSSI_RANGE_FILTER rssiRangeFilter;
}
