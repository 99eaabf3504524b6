package com.kovra.rfid.orla;

/** How a peak RSSI is compared with the limits of an RSSI range filter; ordinal = C value. */
public enum MATCH_RANGE {
    WITHIN_RANGE, // 0
    OUTSIDE_RANGE, // 1
    GREATER_THAN_LOWER_LIMIT, // 2
    LOWER_THAN_UPPER_LIMIT; // 3
}
