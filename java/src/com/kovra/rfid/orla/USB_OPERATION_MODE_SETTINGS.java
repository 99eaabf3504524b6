package com.kovra.rfid.orla;

/**
 * USB operation mode of the reader (class name chosen by this SDK). Setting reads mode; getting writes
 * enumMode instead.
 */
public class USB_OPERATION_MODE_SETTINGS {
    /** Sent by a set; a get writes enumMode instead. Must not be null. */
    public USB_OPERATION_MODE mode = USB_OPERATION_MODE.USB_OPERATION_MODE_NETWORK;
    /** Ordinal of the USB_OPERATION_MODE, written by RFID_GetUSBOperationMode. */
    public short enumMode;
    public boolean allowLLRPConnectionOverride;
}
