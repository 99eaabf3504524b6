package com.kovra.rfid.orla;

/** When an antenna of a multi-antenna operation hands over to the next; ordinal = C value. */
public enum ANTENNA_STOP_TRIGGER_TYPE {
    /** Reader value 0. */
    ANTENNA_STOP_TRIGGER_TYPE_NONE,
    /** Reader value 1. */
    ANTENNA_STOP_TRIGGER_TYPE_DURATION_MILLISECONDS,
    /** Reader value 2. */
    ANTENNA_STOP_TRIGGER_TYPE_N_ATTEMPTS,
    /** Reader value 3. */
    ANTENNA_STOP_TRIGGER_TYPE_TAG_OBSERVATION;
}
