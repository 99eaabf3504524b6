package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotEquals;
import static org.junit.jupiter.api.Assertions.assertNull;

import com.kovra.rfid.orla.sim.SimControl;
import org.junit.jupiter.api.Test;

/** Connect: its host name, version and secure records as the reader got them, and the handle written back. */
class ConnectionTest extends NativeTest {

    private static CONNECTION_INFO info(SEC_CONNECTION_INFO secure) {
        CONNECTION_INFO info = new CONNECTION_INFO();
        info.version = lastVersion();
        info.secConnInfo = secure;
        return info;
    }

    /** A secure record whose buffers are longer than their sizes. */
    private static SEC_CONNECTION_INFO secure(boolean secureMode, boolean validatePeerCert) {
        SEC_CONNECTION_INFO s = new SEC_CONNECTION_INFO();
        s.secureMode = secureMode;
        s.validatePeerCert = validatePeerCert;
        s.sizeCertBuff = 3;
        s.clientCertBuff = new byte[] {1, 2, 3, 4, 5};
        s.sizeKeyBuff = 0;
        s.clientKeyBuff = new byte[] {9, 9};
        s.sizePhraseBuff = 2;
        s.phraseBuff = new byte[] {(byte) 0xF0, 0x7F, 0x55};
        s.sizeRootCertBuff = 4;
        s.rootCertBuff = new byte[] {(byte) 0x80, 0, (byte) 0xFF, 1};
        s.connStatus = 0x8877665544332211L;
        return s;
    }

    private static byte[] captured(String name) {
        return SimControl.blob("RFID_ConnectW", -1, name);
    }

    @Test
    void connectPassesParametersAndVersionAndWritesTheHandleBack() {
        long[] handle = {-99L};
        assertEquals(0, ORLANatives.RFID_Connect(handle, "reader-7", 0x7FFFFFFF, -1, info(null)));
        long[] args = SimControl.args("RFID_ConnectW", -1);
        assertArrayEquals(new long[] {0x7FFFFFFFL, 0xFFFFFFFFL}, new long[] {args[2], args[3]}, "unsigned 32 bits");
        byte[] conn = captured("connInfo");
        assertEquals(48, conn.length);
        assertNotEquals(0, lastVersion().ordinal());
        assertEquals(lastVersion().ordinal(), fields(conn, 0, 4)[0]);
        assertZero(conn, 4, 48);
        assertNull(captured("connInfo.secConnInfo"));

        int reader = (int) handle[0];
        assertNotEquals(-99L, handle[0]);
        assertEquals(0, ORLANatives.RFID_Reconnect(reader), "the handle written back is the issued one");
        assertEquals(0, ORLANatives.RFID_DisConnect(reader));
        assertEquals(INVALID_HANDLE, ORLANatives.RFID_Reconnect(reader), "disconnect closed the session");
    }

    @Test
    void hostNameFillsA260CharacterBufferAndIsCutWithoutTerminator() {
        for (String host : new String[] {letters(TEXT_CHARS - 1), letters(TEXT_CHARS), letters(TEXT_CHARS + 40), null,
            ""}) {
            ORLANatives.RFID_Connect(new long[1], host, 0, 0, info(null));
            byte[] sent = captured("hostName");
            assertEquals(TEXT_BYTES, sent.length);
            String expected = host == null ? "" : host.substring(0, Math.min(host.length(), TEXT_CHARS));
            assertEquals(expected, text(sent, 0), "the text up to its terminator, or all 260 characters");
            if (expected.isEmpty()) {
                assertZero(sent, 0, TEXT_BYTES);
            }
        }
    }

    @Test
    void secureRecordCarriesFlagsSizesCopiesAndConnStatus() {
        ORLANatives.RFID_Connect(new long[1], "secure", 0, 0, info(secure(true, false)));
        byte[] sec = captured("connInfo.secConnInfo");
        assertEquals(104, sec.length);
        assertArrayEquals(new long[] {1, 0, 0, 3, 0, 0, 2, 4, 0x8877665544332211L},
                fields(sec, 0, 1, 1, 1, 2, 2, 4, 4, 16, 4, 24, 8, 32, 4, 48, 4, 64, 8),
                "flags, cert size, key size and no key buffer, phrase and root sizes, connStatus");
        assertZero(sec, 72, 104);
        assertArrayEquals(new byte[] {1, 2, 3}, captured("connInfo.secConnInfo.clientCertBuff"));
        assertNull(captured("connInfo.secConnInfo.clientKeyBuff"));
        assertArrayEquals(new byte[] {(byte) 0xF0, 0x7F}, captured("connInfo.secConnInfo.phraseBuff"));
        assertArrayEquals(new byte[] {(byte) 0x80, 0, (byte) 0xFF, 1},
                captured("connInfo.secConnInfo.rootCertBuff"));

        SEC_CONNECTION_INFO raw = secure(true, true);
        rawBoolean(raw, "secureMode", 2);
        rawBoolean(raw, "validatePeerCert", 0x40);
        ORLANatives.RFID_Connect(new long[1], "secure", 0, 0, info(raw));
        assertArrayEquals(new long[] {1, 1}, fields(captured("connInfo.secConnInfo"), 0, 1, 1, 1),
                "any non-zero flag counts as set and is stored as 1");

        ORLANatives.RFID_Connect(new long[1], "plain", 0, 0, info(secure(false, true)));
        assertEquals(0L, fields(captured("connInfo"), 8, 8)[0], "sizes are set, secureMode is off: no record");
        assertNull(captured("connInfo.secConnInfo.clientCertBuff"));
    }

    @Test
    void failingConnectReturnsTheStatusAndLeavesTheHandleArrayAlone() {
        long[] handle = {-99L};
        for (int status : new int[] {7, -5}) {
            SimControl.setStatus("RFID_ConnectW", status);
            assertEquals(status, ORLANatives.RFID_Connect(handle, "reader-7", 0, 0, info(secure(true, true))));
            assertEquals(-99L, handle[0], "the simulator wrote a handle, but the status was not 0");
        }
    }
}
