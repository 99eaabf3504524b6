package com.kovra.rfid.orla;

/** Kind of action of a pre-filter; ordinal = C value. */
public enum FILTER_ACTION {
    FILTER_ACTION_DEFAULT, // 0
    FILTER_ACTION_STATE_AWARE, // 1
    FILTER_ACTION_STATE_UNAWARE; // 2
}
