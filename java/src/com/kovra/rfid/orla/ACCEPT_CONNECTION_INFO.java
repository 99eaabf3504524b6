package com.kovra.rfid.orla;

/** Options of RFID_AcceptConnection (class name chosen by this SDK). */
public class ACCEPT_CONNECTION_INFO {
    public int timeoutMilliseconds;
    public RFID_VERSION rfidVersion = RFID_VERSION.RFID_API_VERSION_1;
}
