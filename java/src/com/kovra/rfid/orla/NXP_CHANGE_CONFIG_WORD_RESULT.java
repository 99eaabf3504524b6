package com.kovra.rfid.orla;

/** Configuration word an NXP change-config operation left on the tag. */
public class NXP_CHANGE_CONFIG_WORD_RESULT {
    /** The configuration word the tag reported. */
    public short ChangeConfigWord;
}
