package com.kovra.rfid.orla;

/** Details of the last error on a reader. */
public class ERROR_INFO {
    /** When the error occurred. */
    public SYSTEMTIME errorTimeStamp = new SYSTEMTIME();
    /** Status code of the error: the ordinal of an RFID_STATUS. */
    public int enumRfidStatusCode;
    /** Description of the status. */
    public String statusDesc;
    /** Further detail from the reader. */
    public String vendorMessage;
}
