package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNotEquals;
import static org.junit.jupiter.api.Assertions.assertNull;

import com.kovra.rfid.orla.sim.Bytes;
import com.kovra.rfid.orla.sim.SimControl;
import java.util.Arrays;
import org.junit.jupiter.api.Test;

/** The login record and the handle of the management session. */
class LoginTest extends NativeTest {

    private static LOGIN_INFO login(String host, String user, String password, boolean force) {
        LOGIN_INFO info = new LOGIN_INFO();
        info.hostName = host;
        info.userName = user;
        info.password = password;
        info.rfidVersion = lastVersion();
        info.forceLogin = force;
        return info;
    }

    private static byte[] record() {
        return SimControl.blob("RFID_LoginW", -1, "loginInfo");
    }

    @Test
    void loginRecordCarriesTextsVersionAndFlags() {
        LOGIN_INFO info = login("reader-3", "admin", "s3cret", true);
        rawBoolean(info, "forceLogin", 0x80);
        assertEquals(0, ORLANatives.RFID_Login(new long[1], info, READER_TYPE.SLED_READER, true));
        long[] args = SimControl.args("RFID_LoginW", -1);
        assertNotEquals(0L, args[0]);
        assertArrayEquals(new long[] {READER_TYPE.SLED_READER.ordinal(), 1, 0},
                new long[] {args[2], args[3], args[4]}, "reader kind, flag as 1, NULL last argument");
        byte[] r = record();
        assertEquals(3144, r.length);
        assertArrayEquals(new String[] {"reader-3", "admin", "s3cret"}, new String[] {text(r, 0), text(r, 1040),
            text(r, 2080)});
        assertZero(r, 2080 + 4 * "s3cret".length(), 3120);
        assertArrayEquals(new long[] {lastVersion().ordinal(), 1}, fields(r, 3120, 4, 3124, 1), "version, forceLogin");
        assertZero(r, 3125, 3144);

        ORLANatives.RFID_Login(new long[1], login(null, letters(TEXT_CHARS + 40), null, false),
                READER_TYPE.FIXED_READER, false);
        r = record();
        assertEquals(0L, SimControl.args("RFID_LoginW", -1)[3]);
        assertEquals(0, fields(r, 3124, 1)[0]);
        assertZero(r, 0, 1040);
        assertEquals(letters(TEXT_CHARS), text(r, 1040), "cut to 260 characters, no terminator");
        assertZero(r, 2080, 3120);
    }

    @Test
    void handleIsCopiedWholeOnSuccessOnlyAndANullLoginInfoIsANullRecord() {
        long[] handle = {-99L};
        SimControl.setOutput("RFID_LoginW", new Bytes.Builder(8).s64(0, 0x1122_3344_8000_0001L).build());
        assertEquals(0, ORLANatives.RFID_Login(handle, login("h", "u", "p", false), READER_TYPE.FIXED_READER, false));
        assertEquals(0x1122_3344_8000_0001L, handle[0]);

        handle[0] = -99L;
        SimControl.setStatus("RFID_LoginW", -7);
        assertEquals(-7, ORLANatives.RFID_Login(handle, login("h", "u", "p", false), READER_TYPE.FIXED_READER, false));
        assertEquals(-99L, handle[0], "the simulator wrote a handle, but the status was not 0");

        ORLANatives.RFID_Login(handle, null, READER_TYPE.HANDHELD_READER, true);
        assertArrayEquals(new long[] {0, READER_TYPE.HANDHELD_READER.ordinal()},
                Arrays.copyOfRange(SimControl.args("RFID_LoginW", -1), 1, 3));
        assertNull(record());
    }
}
