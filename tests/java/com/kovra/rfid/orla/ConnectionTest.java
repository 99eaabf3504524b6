package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotEquals;
import static org.junit.jupiter.api.Assertions.assertNull;

import com.kovra.rfid.orla.sim.Bytes;
import com.kovra.rfid.orla.sim.SimControl;
import org.junit.jupiter.api.Test;

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

    private static void assertHostChars(byte[] host, String expected) {
        for (int i = 0; i < expected.length(); i++) {
            assertEquals(expected.charAt(i), Bytes.u32(host, 4 * i), "character " + i);
        }
    }

    @Test
    void connectPassesParametersAndVersionAndWritesTheHandleBack() {
        long[] handle = {-99L};
        assertEquals(0, ORLANatives.RFID_Connect(handle, "reader-7", 0x7FFFFFFF, -1, info(null)));

        long[] args = SimControl.args("RFID_ConnectW", -1);
        assertEquals(0x7FFFFFFFL, args[2]);
        assertEquals(0xFFFFFFFFL, args[3], "second parameter passed as unsigned 32 bits");

        byte[] conn = captured("connInfo");
        assertEquals(48, conn.length);
        assertNotEquals(0, lastVersion().ordinal());
        assertEquals(lastVersion().ordinal(), Bytes.u32(conn, 0));
        assertZero(conn, 4, 48);
        assertNull(captured("connInfo.secConnInfo"));

        assertNotEquals(-99L, handle[0]);
        assertEquals(0, ORLANatives.RFID_Reconnect((int) handle[0]), "the handle written back is the issued one");
        assertEquals(handle[0], SimControl.args("RFID_Reconnect", -1)[0]);
    }

    @Test
    void hostNameFillsA260CharacterBufferAndIsCutWithoutTerminator() {
        long[] handle = new long[1];

        String fits = letters(TEXT_CHARS - 1);
        ORLANatives.RFID_Connect(handle, fits, 0, 0, info(null));
        byte[] host = captured("hostName");
        assertEquals(4 * TEXT_CHARS, host.length);
        assertHostChars(host, fits);
        assertEquals(0L, Bytes.u32(host, 4 * (TEXT_CHARS - 1)), "terminator after 259 characters");

        String exact = letters(TEXT_CHARS);
        ORLANatives.RFID_Connect(handle, exact, 0, 0, info(null));
        assertHostChars(captured("hostName"), exact);

        ORLANatives.RFID_Connect(handle, letters(TEXT_CHARS + 40), 0, 0, info(null));
        host = captured("hostName");
        assertEquals(4 * TEXT_CHARS, host.length);
        assertHostChars(host, letters(TEXT_CHARS));

        ORLANatives.RFID_Connect(handle, null, 0, 0, info(null));
        assertZero(captured("hostName"), 0, 4 * TEXT_CHARS);

        ORLANatives.RFID_Connect(handle, "", 0, 0, info(null));
        assertZero(captured("hostName"), 0, 4 * TEXT_CHARS);
    }

    @Test
    void secureRecordCarriesFlagsSizesCopiesAndConnStatus() {
        ORLANatives.RFID_Connect(new long[1], "secure", 0, 0, info(secure(true, false)));

        byte[] conn = captured("connInfo");
        byte[] sec = captured("connInfo.secConnInfo");
        assertNotEquals(0L, Bytes.ptr(conn, 8));
        assertEquals(104, sec.length);
        assertEquals(1, Bytes.u8(sec, 0), "secureMode");
        assertEquals(0, Bytes.u8(sec, 1), "validatePeerCert");
        assertZero(sec, 2, 4);
        assertEquals(3L, Bytes.u32(sec, 4));
        assertNotEquals(0L, Bytes.ptr(sec, 8));
        assertEquals(0L, Bytes.u32(sec, 16));
        assertEquals(0L, Bytes.ptr(sec, 24), "no key buffer when its size is 0");
        assertEquals(2L, Bytes.u32(sec, 32));
        assertNotEquals(0L, Bytes.ptr(sec, 40));
        assertEquals(4L, Bytes.u32(sec, 48));
        assertNotEquals(0L, Bytes.ptr(sec, 56));
        assertEquals(0x8877665544332211L, Bytes.s64(sec, 64));
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
        sec = captured("connInfo.secConnInfo");
        assertEquals(1, Bytes.u8(sec, 0), "any non-zero flag counts as set and is stored as 1");
        assertEquals(1, Bytes.u8(sec, 1));
    }

    @Test
    void noSecureRecordWithoutSecConnInfoOrWithSecureModeOff() {
        ORLANatives.RFID_Connect(new long[1], "plain", 0, 0, info(null));
        assertEquals(0L, Bytes.ptr(captured("connInfo"), 8));
        assertNull(captured("connInfo.secConnInfo"));

        ORLANatives.RFID_Connect(new long[1], "plain", 0, 0, info(secure(false, true)));
        assertEquals(0L, Bytes.ptr(captured("connInfo"), 8), "sizes are set, secureMode is off");
        assertNull(captured("connInfo.secConnInfo"));
        assertNull(captured("connInfo.secConnInfo.clientCertBuff"));
    }

    @Test
    void failingConnectReturnsTheStatusAndLeavesTheHandleArrayAlone() {
        SimControl.setStatus("RFID_ConnectW", 7);
        long[] handle = {-99L};
        assertEquals(7, ORLANatives.RFID_Connect(handle, "reader-7", 0, 0, info(secure(true, true))));
        assertEquals(1, SimControl.count("RFID_ConnectW"));
        assertEquals(-99L, handle[0], "the simulator wrote a handle, but the status was not 0");

        SimControl.setStatus("RFID_ConnectW", -5);
        assertEquals(-5, ORLANatives.RFID_Connect(handle, "reader-7", 0, 0, info(null)));
        assertEquals(-99L, handle[0]);
    }

    @Test
    void disconnectClosesTheSessionThatConnectOpened() {
        long[] handle = new long[1];
        assertEquals(0, ORLANatives.RFID_Connect(handle, "reader-7", 0, 0, info(null)));
        int reader = (int) handle[0];

        assertEquals(0, ORLANatives.RFID_Reconnect(reader));
        assertEquals(0, ORLANatives.RFID_DisConnect(reader));
        assertEquals(1, SimControl.count("RFID_Disconnect"));
        assertEquals(INVALID_HANDLE, ORLANatives.RFID_Reconnect(reader));
    }
}
