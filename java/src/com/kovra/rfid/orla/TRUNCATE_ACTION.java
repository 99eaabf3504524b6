package com.kovra.rfid.orla;

/** Gen2 Select truncation; ordinal = C value. */
public enum TRUNCATE_ACTION {
    TRUNCATE_ACTION_UNSPECIFIED, // 0
    TRUNCATE_ACTION_DO_NOT_TRUNCATE, // 1
    TRUNCATE_ACTION_TRUNCATE; // 2
}
