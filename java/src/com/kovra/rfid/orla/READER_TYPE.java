package com.kovra.rfid.orla;

/** Kind of reader a login is meant for (enum name chosen by this SDK); ordinal = C value. */
public enum READER_TYPE {
    /** Reader value 0. */
    FIXED_READER,
    /** Reader value 1. */
    HANDHELD_READER,
    /** Reader value 2. */
    SLED_READER;
}
