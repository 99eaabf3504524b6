package com.kovra.rfid.orla;

/** Locationing data reported with a tag. */
public class LOCATION_INFO {
    public short relativeDistance;
}
