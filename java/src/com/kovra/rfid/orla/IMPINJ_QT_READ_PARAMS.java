package com.kovra.rfid.orla;

/** Parameters of an Impinj QT read. */
public class IMPINJ_QT_READ_PARAMS {
    /** Only the low 32 bits are sent. */
    public long accessPassword;
}
