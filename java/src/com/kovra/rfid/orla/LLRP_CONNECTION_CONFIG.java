package com.kovra.rfid.orla;

/**
 * The reader-initiated LLRP connection: client or server role, host and port (class name chosen by this SDK).
 */
public class LLRP_CONNECTION_CONFIG {
    public boolean isClient;
    public int port;
    public String hostServerIP;
    public SEC_LLRP_CONFIG pSecureModeConfig = new SEC_LLRP_CONFIG();
}
