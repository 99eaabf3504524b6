package com.kovra.rfid.orla;

/** How a peak RSSI is compared with the limits of an RSSI range filter; ordinal = C value. */
public enum MATCH_RANGE {
    /** Reader value 0. */
    WITHIN_RANGE,
    /** Reader value 1. */
    OUTSIDE_RANGE,
    /** Reader value 2. */
    GREATER_THAN_LOWER_LIMIT,
    /** Reader value 3. */
    LOWER_THAN_UPPER_LIMIT;
}
