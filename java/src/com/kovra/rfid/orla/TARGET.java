package com.kovra.rfid.orla;

/** Gen2 Select target: an inventoried flag or SL; ordinal = C value. */
public enum TARGET {
    /** Reader value 0. */
    TARGET_INVENTORIED_STATE_S0,
    /** Reader value 1. */
    TARGET_INVENTORIED_STATE_S1,
    /** Reader value 2. */
    TARGET_INVENTORIED_STATE_S2,
    /** Reader value 3. */
    TARGET_INVENTORIED_STATE_S3,
    /** Reader value 4. */
    TARGET_SL;
}
