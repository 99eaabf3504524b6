package com.kovra.rfid.orla;

/** Mode of the reader's USB device port; ordinal = C value. */
public enum USB_OPERATION_MODE {
    /** Reader value 0. */
    USB_OPERATION_MODE_NETWORK,
    /** Reader value 1. */
    USB_OPERATION_MODE_SERIAL;
}
