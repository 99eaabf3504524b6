package com.kovra.rfid.orla;

/** Details of the last error on a reader. */
public class ERROR_INFO {
    public SYSTEMTIME errorTimeStamp = new SYSTEMTIME();
    public int enumRfidStatusCode;
    public String statusDesc;
    public String vendorMessage;
}
