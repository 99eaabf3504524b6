package com.kovra.rfid.orla;

/** Reader position reported with a tag. */
public class GPS_LOCATION {
    public int longitude;
    public int latitude;
    public int altitude;
}
