package com.kovra.rfid.orla;

/**
 * One operation of an access sequence: the code and, in the field that matches it, its parameters (class name
 * chosen by this SDK).
 */
public class ACCESS_OPERATION {
    public ACCESS_OPERATION_CODE opCode = ACCESS_OPERATION_CODE.ACCESS_OPERATION_READ;
    public READ_ACCESS_PARAMS readAccessParamsStruct = new READ_ACCESS_PARAMS();
    /** Write and block write. */
    public WRITE_ACCESS_PARAMS writeAccessParamsStruct = new WRITE_ACCESS_PARAMS();
    public LOCK_ACCESS_PARAMS lockAccessParamsStruct = new LOCK_ACCESS_PARAMS();
    public KILL_ACCESS_PARAMS killAccessParamsStruct = new KILL_ACCESS_PARAMS();
    public BLOCK_ERASE_ACCESS_PARAMS blockEraseAccessParamsStruct = new BLOCK_ERASE_ACCESS_PARAMS();
    public RECOMMISSION_ACCESS_PARAMS recommissionAccessParamsStruct = new RECOMMISSION_ACCESS_PARAMS();
    public BLOCK_PERMALOCK_ACCESS_PARAMS blockPermalockAccessParamsStruct = new BLOCK_PERMALOCK_ACCESS_PARAMS();
    public NXP_SET_EAS_PARAMS setEASParamsStruct = new NXP_SET_EAS_PARAMS();
    public NXP_READ_PROTECT_PARAMS readProtectParamsStruct = new NXP_READ_PROTECT_PARAMS();
    public NXP_RESET_READ_PROTECT_PARAMS resetReadProtectParamsStruct = new NXP_RESET_READ_PROTECT_PARAMS();
    public IMPINJ_QT_WRITE_PARAMS QTWriteParamsStruct = new IMPINJ_QT_WRITE_PARAMS();
    public IMPINJ_QT_READ_PARAMS QTReadParamsStruct = new IMPINJ_QT_READ_PARAMS();
    public NXP_CHANGE_CONFIG_PARAMS nxpChangeConfigParamsStruct = new NXP_CHANGE_CONFIG_PARAMS();
}
