package com.kovra.rfid.orla;

/** Parameters of an Impinj QT write. */
public class IMPINJ_QT_WRITE_PARAMS {
    /** Only the low 32 bits are sent. */
    public long accessPassword;
    /** true to keep the control word across power cycles. */
    public boolean qtPersist;
    /** The control word to write; must not be null. */
    public IMPINJ_QT_DATA qtData = new IMPINJ_QT_DATA();
}
