package com.kovra.rfid.orla;

/** Where the reader fetches a software update from (class name chosen by this SDK). */
public class UPDATE_INFO {
    public String hostName;
    public String userName;
    public String password;
}
