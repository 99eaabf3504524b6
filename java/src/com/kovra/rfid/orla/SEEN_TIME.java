package com.kovra.rfid.orla;

/** Seen times of a tag; which form is filled depends on the UTC flag of the call. */
public class SEEN_TIME {
    public UTC_TIME utcTime = new UTC_TIME();
    public UP_TIME upTime = new UP_TIME();
}
