package com.kovra.rfid.orla;

/** First and last time a tag was seen, as calendar times. */
public class UTC_TIME {
    public SYSTEMTIME firstSeenTimeStamp = new SYSTEMTIME();
    public SYSTEMTIME lastSeenTimeStamp = new SYSTEMTIME();
}
