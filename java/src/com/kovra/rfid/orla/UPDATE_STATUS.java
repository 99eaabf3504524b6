package com.kovra.rfid.orla;

/** Progress of a software update (class name chosen by this SDK). */
public class UPDATE_STATUS {
    /** Progress in percent. */
    public int percentage;
    /** What the update is doing, as text. */
    public String updateInfo;
}
