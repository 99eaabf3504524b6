package com.kovra.rfid.orla;

/** Kind of action of a pre-filter; ordinal = C value. */
public enum FILTER_ACTION {
    /** Reader value 0. */
    FILTER_ACTION_DEFAULT,
    /** Reader value 1. */
    FILTER_ACTION_STATE_AWARE,
    /** Reader value 2. */
    FILTER_ACTION_STATE_UNAWARE;
}
