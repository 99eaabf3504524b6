package com.kovra.rfid.orla;

/** When an operation stops; ordinal = C value. */
public enum STOP_TRIGGER_TYPE {
    /** Reader value 0. */
    STOP_TRIGGER_TYPE_IMMEDIATE,
    /** Reader value 1. */
    STOP_TRIGGER_TYPE_DURATION,
    /** Reader value 2. */
    STOP_TRIGGER_TYPE_GPI_WITH_TIMEOUT,
    /** Reader value 3. */
    STOP_TRIGGER_TYPE_TAG_OBSERVATION_WITH_TIMEOUT,
    /** Reader value 4. */
    STOP_TRIGGER_TYPE_N_ATTEMPTS_WITH_TIMEOUT,
    /** Reader value 5. */
    STOP_TRIGGER_TYPE_HANDHELD_WITH_TIMEOUT,
    /** Reader value 6. */
    STOP_TRIGGER_TYPE_TIMELAPSE;
}
