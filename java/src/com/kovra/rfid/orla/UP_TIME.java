package com.kovra.rfid.orla;

/** First and last time a tag was seen, as counts since the reader started. */
public class UP_TIME {
    public long firstSeenTimeStamp;
    public long lastSeenTimeStamp;
}
