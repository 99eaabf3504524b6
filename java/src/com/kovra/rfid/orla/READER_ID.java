package com.kovra.rfid.orla;

/** Identity of a reader. */
public class READER_ID {
    public int enumType;
    public String value;
}
