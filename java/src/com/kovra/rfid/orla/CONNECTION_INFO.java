package com.kovra.rfid.orla;

/** Connection options of RFID_Connect (class name chosen by this SDK). */
public class CONNECTION_INFO {
    public RFID_VERSION version = RFID_VERSION.RFID_API_VERSION_1;
    /** null for an unsecured connection. */
    public SEC_CONNECTION_INFO secConnInfo;
}
