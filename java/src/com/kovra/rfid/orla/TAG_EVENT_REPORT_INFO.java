package com.kovra.rfid.orla;

/** Which tag events are reported, and their moderation time-outs. */
public class TAG_EVENT_REPORT_INFO {
    public TAG_EVENT_REPORT_TRIGGER reportNewTagEvent = TAG_EVENT_REPORT_TRIGGER.NEVER;
    /** Moderation time-out in milliseconds. */
    public short newTagEventModeratedTimeoutMilliseconds;
    public TAG_EVENT_REPORT_TRIGGER reportTagInvisibleEvent = TAG_EVENT_REPORT_TRIGGER.NEVER;
    /** Moderation time-out in milliseconds. */
    public short tagInvisibleEventModeratedTimeoutMilliseconds;
    public TAG_EVENT_REPORT_TRIGGER reportTagBackToVisibilityEvent = TAG_EVENT_REPORT_TRIGGER.NEVER;
    /** Moderation time-out in milliseconds. */
    public short tagBackToVisibilityModeratedTimeoutMilliseconds;
    public TAG_MOVING_EVENT_REPORT reportTagMovingEvent = TAG_MOVING_EVENT_REPORT.TAG_MOVING_EVENT_DISABLE;
    /** Moderation time-out in milliseconds. */
    public short tagStationaryModeratedTimeoutMilliseconds;
}
