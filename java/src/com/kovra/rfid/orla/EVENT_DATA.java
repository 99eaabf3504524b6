package com.kovra.rfid.orla;

/**
 * Data of one reader event; RFID_GetEventData fills the fields of the requested type (class name chosen by
 * this SDK).
 */
public class EVENT_DATA {
    /** GPI event: port. */
    public short port;
    /** GPI event: new state. */
    public boolean eventInfo;
    /** Antenna and NXP EAS alarm events: antenna. */
    public short antennaID;
    /** Antenna event: what happened. */
    public short enumAntennaEvent;
    /** Disconnection and handheld trigger events: event code. */
    public short enumEventInfo;
    /** NXP EAS alarm event: 64-bit alarm code as decimal text. */
    public String alarmCode;
    /** Reader exception event: type. */
    public short enumExceptionType;
    /** Reader exception event: text. */
    public String exceptionInfo;
    /** Temperature alarm event: source. */
    public short enumSourceName;
    /** Temperature alarm event: level. */
    public short enumAlarmLevel;
    /** Temperature alarm event: current temperature. */
    public short currentTemperature;
}
