package com.kovra.rfid.orla;

/** Colours of the user LED; ordinal = C value. */
public enum LED_COLOR {
    /** Reader value 0. */
    LED_OFF,
    /** Reader value 1. */
    LED_RED,
    /** Reader value 2. */
    LED_GREEN,
    /** Reader value 3. */
    LED_YELLOW;
}
