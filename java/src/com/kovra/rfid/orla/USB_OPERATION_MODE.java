package com.kovra.rfid.orla;

/** Mode of the reader's USB device port; ordinal = C value. */
public enum USB_OPERATION_MODE {
    USB_OPERATION_MODE_NETWORK, // 0
    USB_OPERATION_MODE_SERIAL; // 1
}
