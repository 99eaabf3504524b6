package com.kovra.rfid.orla;

/** When an operation starts; ordinal = C value. */
public enum START_TRIGGER_TYPE {
    /** Reader value 0. */
    START_TRIGGER_TYPE_IMMEDIATE,
    /** Reader value 1. */
    START_TRIGGER_TYPE_PERIODIC,
    /** Reader value 2. */
    START_TRIGGER_TYPE_GPI,
    /** Reader value 3. */
    START_TRIGGER_TYPE_HANDHELD,
    /** Reader value 4. */
    START_TRIGGER_TYPE_TIMELAPSE,
    /** Reader value 5. */
    START_TRIGGER_TYPE_DISTANCE;
}
