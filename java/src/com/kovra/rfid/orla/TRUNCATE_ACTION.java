package com.kovra.rfid.orla;

/** Gen2 Select truncation; ordinal = C value. */
public enum TRUNCATE_ACTION {
    /** Reader value 0. */
    TRUNCATE_ACTION_UNSPECIFIED,
    /** Reader value 1. */
    TRUNCATE_ACTION_DO_NOT_TRUNCATE,
    /** Reader value 2. */
    TRUNCATE_ACTION_TRUNCATE;
}
