package com.kovra.rfid.orla;

/** Whether moving and stationary tag events are reported; ordinal = C value. */
public enum TAG_MOVING_EVENT_REPORT {
    /** Reader value 0. */
    TAG_MOVING_EVENT_DISABLE,
    /** Reader value 1. */
    TAG_MOVING_EVENT_ENABLE;
}
