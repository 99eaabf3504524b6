package com.kovra.rfid.orla;

/** First and last time a tag was seen, as counts since the reader started. */
public class UP_TIME {
    /** First seen, in the reader's up-time unit. */
    public long firstSeenTimeStamp;
    /** Last seen, in the reader's up-time unit. */
    public long lastSeenTimeStamp;
}
