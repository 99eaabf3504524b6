package com.kovra.rfid.orla;

/** Credentials of a secured reader connection; each buffer is sent with its size field. */
public class SEC_CONNECTION_INFO {
    /** Only when true is a secured connection requested. */
    public boolean secureMode;
    public boolean validatePeerCert;
    /** Number of bytes of clientCertBuff sent; at most its length. */
    public int sizeCertBuff;
    public byte[] clientCertBuff = new byte[0];
    /** Number of bytes of clientKeyBuff sent; at most its length. */
    public int sizeKeyBuff;
    public byte[] clientKeyBuff = new byte[0];
    /** Number of bytes of phraseBuff sent; at most its length. */
    public int sizePhraseBuff;
    /** Pass phrase of the client key. */
    public byte[] phraseBuff = new byte[0];
    /** Number of bytes of rootCertBuff sent; at most its length. */
    public int sizeRootCertBuff;
    public byte[] rootCertBuff = new byte[0];
    /** Sent to the reader; not written back. */
    public long connStatus;
}
