package com.kovra.rfid.orla;

/** A user application installed on the reader (class name chosen by this SDK). */
public class USER_APP_INFO {
    public String appName;
    /** true while the application runs. */
    public boolean runStatus;
    /** true when it starts with the reader. */
    public boolean autoStart;
    /** Further information on the application, as text. */
    public String Metadata;
}
