package com.kovra.rfid.orla;

/** Parameters of a Gen2v2 authenticate (class name chosen by this SDK). */
public class AUTHENTICATE_PARAMS {
    public boolean sendRsp;
    public boolean incRespLen;
    /** Cryptographic suite indicator. */
    public byte CSI;
    /** Message length in bits; length / 8 bytes of pMessage are sent. */
    public short length;
    /** The message; must hold at least length / 8 bytes. */
    public byte[] pMessage = new byte[0];
    /** Only the low 32 bits are sent. */
    public long accessPassword;
}
