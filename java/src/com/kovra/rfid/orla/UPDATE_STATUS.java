package com.kovra.rfid.orla;

/** Progress of a software update (class name chosen by this SDK). */
public class UPDATE_STATUS {
    public int percentage;
    public String updateInfo;
}
