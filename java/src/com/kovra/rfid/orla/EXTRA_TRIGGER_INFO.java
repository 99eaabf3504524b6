package com.kovra.rfid.orla;

/**
 * Up to seven further start and seven further stop triggers; unused entries stay null.
 *
 * <p>Each array may be null (no further triggers); otherwise the reader reads exactly seven elements, and a
 * shorter array raises {@code ArrayIndexOutOfBoundsException} when the call returns. A further stop trigger
 * of the tag-observation type goes out with its values only when an earlier entry of the same array is an
 * n-attempts trigger whose {@code numAttempts} is set; otherwise it goes out with its type alone.
 */
public class EXTRA_TRIGGER_INFO {
    /** Number of entries of each array; the reader reads exactly this many. */
    public static final int MAX_EXTRA_TRIGGERS = 7;

    public START_TRIGGER[] startTrigger = new START_TRIGGER[MAX_EXTRA_TRIGGERS];
    public STOP_TRIGGER[] stopTrigger = new STOP_TRIGGER[MAX_EXTRA_TRIGGERS];
}
