package com.kovra.rfid.orla;

/** Identity of a reader. */
public class READER_ID {
    /** Kind of identifier, as the reader defines it. */
    public int enumType;
    /** The identifier. */
    public String value;
}
