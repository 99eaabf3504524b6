package com.kovra.rfid.orla;

/** Options of RFID_AcceptConnection (class name chosen by this SDK). */
public class ACCEPT_CONNECTION_INFO {
    /** Read by RFID_AcceptConnection but not sent to the reader. */
    public int timeoutMilliseconds;
    /** API version of the connection; must not be null. */
    public RFID_VERSION rfidVersion = RFID_VERSION.RFID_API_VERSION_1;
}
