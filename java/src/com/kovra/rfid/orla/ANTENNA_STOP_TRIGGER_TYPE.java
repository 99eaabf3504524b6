package com.kovra.rfid.orla;

/** When an antenna of a multi-antenna operation hands over to the next; ordinal = C value. */
public enum ANTENNA_STOP_TRIGGER_TYPE {
    ANTENNA_STOP_TRIGGER_TYPE_NONE, // 0
    ANTENNA_STOP_TRIGGER_TYPE_DURATION_MILLISECONDS, // 1
    ANTENNA_STOP_TRIGGER_TYPE_N_ATTEMPTS, // 2
    ANTENNA_STOP_TRIGGER_TYPE_TAG_OBSERVATION; // 3
}
