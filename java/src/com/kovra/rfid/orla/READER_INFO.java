package com.kovra.rfid.orla;

/** Administrative identity of the reader (class name chosen by this SDK). */
public class READER_INFO {
    public String name;
    public String description;
    public String location;
    public String contact;
}
