package com.kovra.rfid.orla;

/** Gen2v2 untraceable: how much of the TID bank is hidden; ordinal = C value. */
public enum TID_HIDE_STATE {
    /** Reader value 0. */
    HIDE_TID_NONE,
    /** Reader value 1. */
    HIDE_TID_SOME,
    /** Reader value 2. */
    HIDE_TID_ALL;
}
