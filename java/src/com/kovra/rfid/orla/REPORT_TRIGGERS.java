package com.kovra.rfid.orla;

/** When tag reports are sent. */
public class REPORT_TRIGGERS {
    public int periodicReportDuration;
}
