package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotEquals;
import static org.junit.jupiter.api.Assertions.assertNull;
import static org.junit.jupiter.api.Assertions.assertSame;
import static org.junit.jupiter.api.Assertions.assertTrue;

import com.kovra.rfid.orla.sim.Bytes;
import com.kovra.rfid.orla.sim.SimControl;
import org.junit.jupiter.api.Test;

/** The reader-initiated LLRP connection: its configuration and accepting a connection. */
class LlrpTest extends NativeTest {

    private static final String SET = "RFID_SetLLRPConnectionConfigW";
    private static final String GET = "RFID_GetLLRPConnectionConfigW";

    private static LLRP_CONNECTION_CONFIG config(boolean client, int port, String host, boolean secure,
            boolean validate) {
        LLRP_CONNECTION_CONFIG c = new LLRP_CONNECTION_CONFIG();
        c.isClient = client;
        c.port = port;
        c.hostServerIP = host;
        c.pSecureModeConfig.secureMode = secure;
        c.pSecureModeConfig.validatePeerCert = validate;
        return c;
    }

    private static byte[] sent() {
        return SimControl.blob(SET, -1, "config");
    }

    @Test
    void setPassesRoleUnsignedPortHostAndTheSecureRecord() {
        int reader = connect();
        LLRP_CONNECTION_CONFIG raw = config(true, -1, "10.0.0.7", true, true);
        rawBoolean(raw, "isClient", 2);
        rawBoolean(raw.pSecureModeConfig, "secureMode", 0x40);
        rawBoolean(raw.pSecureModeConfig, "validatePeerCert", 0x80);
        assertEquals(0, ORLANatives.RFID_SetLLRPConnectionConfig(reader, raw));
        byte[] r = sent();
        assertEquals(1096, r.length);
        assertArrayEquals(new long[] {1, 0, 0xFFFF_FFFFL}, fields(r, 0, 1, 1, 2, 4, 4), "isClient as 1, port");
        assertEquals("10.0.0.7", text(r, 8));
        assertZero(r, 8 + 4 * "10.0.0.7".length(), 1048);
        assertZero(r, 1056, 1096);
        assertArrayEquals(new Bytes.Builder(40).u8(0, 1).u8(1, 1).build(),
                SimControl.blob(SET, -1, "config.pSecureModeConfig"));

        ORLANatives.RFID_SetLLRPConnectionConfig(reader, config(true, 5084, "h", true, false));
        assertArrayEquals(new byte[] {1, 0}, Bytes.slice(SimControl.blob(SET, -1, "config.pSecureModeConfig"), 0, 2));
    }

    @Test
    void setWithSecureModeOffOrANullOrLongHost() {
        int reader = connect();
        ORLANatives.RFID_SetLLRPConnectionConfig(reader, config(false, 0, null, false, true));
        byte[] r = sent();
        assertEquals(0, Bytes.u8(r, 0), "isClient");
        assertZero(r, 8, 1056);
        assertNull(SimControl.blob(SET, -1, "config.pSecureModeConfig"), "secureMode off: no secure record");

        ORLANatives.RFID_SetLLRPConnectionConfig(reader, config(false, 0, letters(TEXT_CHARS + 9), false, false));
        assertEquals(letters(TEXT_CHARS), text(sent(), 8), "cut to 260 characters, no terminator");
    }

    @Test
    void getWritesEveryFieldAndTheSecureObjectOnlyWhenThereIsARecord() {
        int reader = connect();
        // Bytes go to Java as they stand, and the virtual machine keeps bit 0: 2 reads false, 3 true.
        long secure = SimControl.alloc(new Bytes.Builder(40).u8(0, 3).u8(1, 2).build());
        SimControl.setOutput(GET, new Bytes.Builder(1096).u8(0, 1).u32(4, 0x8000_0001L)
                .wide(8, "llrp.example", TEXT_CHARS).ptr(1048, secure).build());
        LLRP_CONNECTION_CONFIG c = config(false, 0, null, false, true);
        SEC_LLRP_CONFIG javaSecure = c.pSecureModeConfig;
        assertEquals(0, ORLANatives.RFID_GetLLRPConnectionConfig(reader, c));
        assertZero(SimControl.blob(GET, -1, "config"), 0, 1096);
        assertArrayEquals(new Object[] {true, 0x8000_0001, "llrp.example", true, false}, new Object[] {c.isClient,
            c.port, c.hostServerIP, c.pSecureModeConfig.secureMode, c.pSecureModeConfig.validatePeerCert});
        assertSame(javaSecure, c.pSecureModeConfig);

        SimControl.setOutput(GET, new Bytes.Builder(1096).u8(0, 2).u32(4, 7).wide(8, "x", TEXT_CHARS).build());
        c = config(true, 0, null, true, true);
        assertEquals(0, ORLANatives.RFID_GetLLRPConnectionConfig(reader, c));
        assertArrayEquals(new Object[] {false, 7, "x"}, new Object[] {c.isClient, c.port, c.hostServerIP});
        assertTrue(c.pSecureModeConfig.secureMode && c.pSecureModeConfig.validatePeerCert, "no record: untouched");
    }

    @Test
    void acceptPassesTheLongAndVersionDropsTheTimeoutAndCopiesTheHandleOnSuccessOnly() {
        ACCEPT_CONNECTION_INFO info = new ACCEPT_CONNECTION_INFO();
        info.timeoutMilliseconds = 0x5EED_7137;
        info.rfidVersion = lastVersion();
        long[] handle = {-99L};
        SimControl.setOutput("RFID_AcceptConnection", new Bytes.Builder(8).s64(0, 0x7766_5544_8000_0003L).build());
        assertEquals(0, ORLANatives.RFID_AcceptConnection(handle, 0x8000_0000_0000_0001L, info));
        assertEquals(0x7766_5544_8000_0003L, handle[0]);
        long[] args = SimControl.args("RFID_AcceptConnection", -1);
        assertEquals(0x8000_0000_0000_0001L, args[1]);
        assertNotEquals(0L, args[3], "an output area is always given");
        byte[] r = SimControl.blob("RFID_AcceptConnection", -1, "acceptInfo");
        assertEquals(lastVersion().ordinal(), Bytes.u32(r, 4));
        assertNotEquals(0x5EED_7137L, Bytes.u32(r, 0), "the time-out is read but never stored");

        handle[0] = -99L;
        SimControl.setStatus("RFID_AcceptConnection", 5);
        assertEquals(5, ORLANatives.RFID_AcceptConnection(handle, 0, info));
        assertEquals(-99L, handle[0]);
    }
}
