package com.kovra.rfid.orla;

/** Whether moving and stationary tag events are reported; ordinal = C value. */
public enum TAG_MOVING_EVENT_REPORT {
    TAG_MOVING_EVENT_DISABLE, // 0
    TAG_MOVING_EVENT_ENABLE; // 1
}
