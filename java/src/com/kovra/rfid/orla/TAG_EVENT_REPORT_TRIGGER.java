package com.kovra.rfid.orla;

/** How a tag event is reported; ordinal = C value. */
public enum TAG_EVENT_REPORT_TRIGGER {
    NEVER, // 0
    IMMEDIATE, // 1
    MODERATED; // 2
}
