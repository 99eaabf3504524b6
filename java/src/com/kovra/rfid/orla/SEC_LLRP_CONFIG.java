package com.kovra.rfid.orla;

/** Security of the LLRP connection initiated by the reader. */
public class SEC_LLRP_CONFIG {
    public boolean secureMode;
    public boolean validatePeerCert;
}
