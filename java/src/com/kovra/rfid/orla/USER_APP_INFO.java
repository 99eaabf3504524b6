package com.kovra.rfid.orla;

/** A user application installed on the reader (class name chosen by this SDK). */
public class USER_APP_INFO {
    public String appName;
    public boolean runStatus;
    public boolean autoStart;
    public String Metadata;
}
