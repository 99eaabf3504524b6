package com.kovra.rfid.orla;

/** Handheld trigger events; ordinal = C value. */
public enum HANDHELD_TRIGGER_EVENT_TYPE {
    HANDHELD_TRIGGER_RELEASED, // 0
    HANDHELD_TRIGGER_PRESSED; // 1
}
