package com.kovra.rfid.orla;

/** Handheld trigger events; ordinal = C value. */
public enum HANDHELD_TRIGGER_EVENT_TYPE {
    /** Reader value 0. */
    HANDHELD_TRIGGER_RELEASED,
    /** Reader value 1. */
    HANDHELD_TRIGGER_PRESSED;
}
