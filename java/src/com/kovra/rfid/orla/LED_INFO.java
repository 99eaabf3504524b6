package com.kovra.rfid.orla;

/** Lights the user LED (class name chosen by this SDK). */
public class LED_INFO {
    public LED_COLOR ledColor = LED_COLOR.LED_OFF;
    public int duration;
    public boolean blink;
}
