package com.kovra.rfid.orla;

/** Parameters of a recommission. */
public class RECOMMISSION_ACCESS_PARAMS {
    /** Only the low 32 bits are sent. */
    public long killPassword;
    public RECOMMISSION_OPERATION_CODE opCode = RECOMMISSION_OPERATION_CODE.RECOMMISSION_DISABLE_PERMALOCK;
}
