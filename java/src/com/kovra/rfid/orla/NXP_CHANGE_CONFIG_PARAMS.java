package com.kovra.rfid.orla;

/** Parameters of an NXP change config. */
public class NXP_CHANGE_CONFIG_PARAMS {
    /** Only the low 32 bits are sent. */
    public long accessPassword;
    /** The 16 configuration bits sent to the tag. */
    public short ChangeConfigWord;
}
