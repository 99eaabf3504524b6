package com.kovra.rfid.orla;

/** Gen2 SL flag state to singulate; ordinal = C value. */
public enum SL_FLAG {
    /** Reader value 0. */
    SL_FLAG_ASSERTED,
    /** Reader value 1. */
    SL_FLAG_DEASSERTED,
    /** Reader value 2. */
    SL_ALL;
}
