package com.kovra.rfid.orla;

/** How a tag event is reported; ordinal = C value. */
public enum TAG_EVENT_REPORT_TRIGGER {
    /** Reader value 0. */
    NEVER,
    /** Reader value 1. */
    IMMEDIATE,
    /** Reader value 2. */
    MODERATED;
}
