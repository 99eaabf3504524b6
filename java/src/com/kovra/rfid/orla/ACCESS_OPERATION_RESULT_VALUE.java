package com.kovra.rfid.orla;

/** Result of the access operation reported with a tag; the member set depends on the operation code. */
public class ACCESS_OPERATION_RESULT_VALUE {
    /** QT control word read by an Impinj QT read (operation code 21). */
    public IMPINJ_QT_DATA qtData = new IMPINJ_QT_DATA();
    /** Configuration word left by an NXP change config (operation code 22). */
    public NXP_CHANGE_CONFIG_WORD_RESULT nxpChangeConfigWordResult = new NXP_CHANGE_CONFIG_WORD_RESULT();
    /** Reply of authenticate, read buffer and crypto operations, as hexadecimal text. */
    public String authenticateReadBufferResult;
}
