package com.kovra.rfid.orla;

/** Run status of one user application (class name chosen by this SDK). */
public class USER_APP_RUN_STATUS {
    /** true while the application runs. */
    public boolean runStatus;
}
