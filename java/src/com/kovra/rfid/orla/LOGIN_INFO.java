package com.kovra.rfid.orla;

/** Login to the management interface of a reader (class name chosen by this SDK). */
public class LOGIN_INFO {
    public String hostName;
    public String userName;
    public String password;
    public RFID_VERSION rfidVersion = RFID_VERSION.RFID_API_VERSION_1;
    public boolean forceLogin;
}
