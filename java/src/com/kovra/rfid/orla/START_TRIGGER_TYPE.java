package com.kovra.rfid.orla;

/** When an operation starts; ordinal = C value. */
public enum START_TRIGGER_TYPE {
    START_TRIGGER_TYPE_IMMEDIATE, // 0
    START_TRIGGER_TYPE_PERIODIC, // 1
    START_TRIGGER_TYPE_GPI, // 2
    START_TRIGGER_TYPE_HANDHELD, // 3
    START_TRIGGER_TYPE_TIMELAPSE, // 4
    START_TRIGGER_TYPE_DISTANCE; // 5
}
