package com.kovra.rfid.orla;

/** Start, stop and report triggers of an inventory, EAS scan or access sequence. */
public class TRIGGER_INFO {
    /** Must not be null. */
    public START_TRIGGER startTrigger = new START_TRIGGER();
    /** Must not be null. */
    public STOP_TRIGGER stopTrigger = new STOP_TRIGGER();
    public int tagReportTrigger;
    /** Optional. */
    public TAG_EVENT_REPORT_INFO tagEventReportInfo;
    /** Optional. */
    public REPORT_TRIGGERS reportTriggers;
    /** Must not be null; see {@link EXTRA_TRIGGER_INFO} for its arrays. */
    public EXTRA_TRIGGER_INFO extraTriggers = new EXTRA_TRIGGER_INFO();
}
