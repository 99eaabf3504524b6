package com.kovra.rfid.orla;

/**
 * The reader-initiated LLRP connection: client or server role, host and port (class name chosen by this SDK).
 */
public class LLRP_CONNECTION_CONFIG {
    /** true when the reader connects to hostServerIP as client, false when it waits as server. */
    public boolean isClient;
    /** TCP port of the connection. */
    public int port;
    /** Address of the host server. */
    public String hostServerIP;
    /** Secure settings; must not be null. A set sends them only when its secureMode is true. */
    public SEC_LLRP_CONFIG pSecureModeConfig = new SEC_LLRP_CONFIG();
}
