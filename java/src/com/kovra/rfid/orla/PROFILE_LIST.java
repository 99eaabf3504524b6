package com.kovra.rfid.orla;

/** Configuration profiles stored on the reader (class name chosen by this SDK). */
public class PROFILE_LIST {
    public short numProfiles;
    public short activeProfileIndex;
    /** All names, separated by ":". */
    public String ProfileNamesList;
}
