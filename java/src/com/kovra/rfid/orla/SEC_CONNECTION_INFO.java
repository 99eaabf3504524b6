package com.kovra.rfid.orla;

/** Credentials of a secured reader connection; each buffer is sent with its size field. */
public class SEC_CONNECTION_INFO {
    /** Only when true is a secured connection requested. */
    public boolean secureMode;
    public boolean validatePeerCert;
    public int sizeCertBuff;
    public byte[] clientCertBuff = new byte[0];
    public int sizeKeyBuff;
    public byte[] clientKeyBuff = new byte[0];
    public int sizePhraseBuff;
    /** Pass phrase of the client key. */
    public byte[] phraseBuff = new byte[0];
    public int sizeRootCertBuff;
    public byte[] rootCertBuff = new byte[0];
    public long connStatus;
}
