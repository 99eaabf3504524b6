package com.kovra.rfid.orla;

/** Colours of the user LED; ordinal = C value. */
public enum LED_COLOR {
    LED_OFF, // 0
    LED_RED, // 1
    LED_GREEN, // 2
    LED_YELLOW; // 3
}
