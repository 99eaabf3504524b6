package com.kovra.rfid.orla;

/** Version of the reader API library (class name chosen by this SDK). */
public class VERSION_INFO {
    public String dllVersion;
}
