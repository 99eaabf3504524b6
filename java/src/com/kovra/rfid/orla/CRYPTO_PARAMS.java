package com.kovra.rfid.orla;

/** Parameters of a Gen2v2 crypto command (class name chosen by this SDK); three IChallenge words are sent. */
public class CRYPTO_PARAMS {
    public byte keyID;
    /** Interrogator challenge: three 32-bit words; must hold at least 3 elements. */
    public int[] IChallenge = new int[3];
    public boolean customData;
    public byte profile;
    public byte offset;
    public byte blockCount;
    public byte protMode;
    /** Only the low 32 bits are sent. */
    public long accessPassword;
}
