package com.kovra.rfid.orla;

/** Kind of reader a login is meant for (enum name chosen by this SDK); ordinal = C value. */
public enum READER_TYPE {
    FIXED_READER, // 0
    HANDHELD_READER, // 1
    SLED_READER; // 2
}
