package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;

import com.kovra.rfid.orla.sim.Bytes;
import com.kovra.rfid.orla.sim.Call;
import java.util.Arrays;
import org.junit.jupiter.api.Test;
import org.junit.jupiter.params.ParameterizedTest;
import org.junit.jupiter.params.provider.CsvSource;

/**
 * Gen2v2 security commands: their zeroed records and the message of whole
 * bytes that authenticate sends.
 *
 * <p>Read buffer is not called here: it reads its fields through a null
 * object reference, and this virtual machine aborts on that lookup.
 */
class Gen2v2OperationTest extends TagAccessTest {

    private static final byte[] MESSAGE = {(byte) 0xC1, 0x22, 0x33, 0x44};

    private static AUTHENTICATE_PARAMS authenticate(int lengthInBits, byte[] message) {
        AUTHENTICATE_PARAMS p = new AUTHENTICATE_PARAMS();
        p.sendRsp = true;
        p.CSI = (byte) 0xFE;
        p.length = (short) lengthInBits;
        p.pMessage = message;
        p.accessPassword = PASSWORD;
        return p;
    }

    @Test
    void authenticateSendsItsZeroedRecord() {
        ORLANatives.RFID_Athenticate(NO_READER, TAG_ID, 6, authenticate(32, MESSAGE), null, null, null, null, null,
                true);
        Call call = Call.last("RFID_Authenticate");
        assertArrayEquals(new long[] {1, 0, 0xFE, 0, 32, 0, 0, 0x8765_4321L},
                fields(sentParams(call, 24), 0, 1, 1, 1, 2, 1, 3, 1, 4, 2, 6, 2, 20, 4, 16, 4));
        assertArrayEquals(MESSAGE, call.blob("params.pMessage"));
    }

    /** Only whole bytes of the bit length are sent; the record keeps the bit length, unsigned. */
    @ParameterizedTest
    @CsvSource({"12, 1", "7, 0", "0, 0", "65528, 8191"})
    void authenticateSendsWholeBytesOfTheMessage(int lengthInBits, int bytes) {
        byte[] message = new byte[Math.max(bytes, 4)];
        message[0] = 0x11;
        message[message.length - 1] = 0x7E;
        ORLANatives.RFID_Athenticate(NO_READER, TAG_ID, 6, authenticate(lengthInBits, message), null, null, null,
                null, null, true);
        Call call = Call.last("RFID_Authenticate");
        assertEquals(lengthInBits, Bytes.u16(call.blob("params"), 4));
        assertArrayEquals(Arrays.copyOf(message, bytes), call.blob("params.pMessage"));
    }

    private static UNTRACEABLE_PARAMS untraceable() {
        UNTRACEABLE_PARAMS p = new UNTRACEABLE_PARAMS();
        p.hideEPC = true;
        p.EPCLength = 6;
        p.hideTID = TID_HIDE_STATE.HIDE_TID_ALL;
        p.hideUser = true;
        p.operatingRange = TAG_OPERATING_RANGE.TAG_OPERATING_RANGE_TOGGLE;
        p.accessPassword = PASSWORD;
        return p;
    }

    /** The three booleans read (assertU, hideEPC, hideUser) = (0, 1, 1), then (1, 0, 1): none stands for another. */
    @Test
    void untraceableSendsItsZeroedRecord() {
        ORLANatives.RFID_Untraceable(NO_READER, TAG_ID, 6, untraceable(), null, null, null, null, null, true);
        assertArrayEquals(new long[] {0, 1, 6, 0, 2, 1, 0, 0, 0, 1, 0x8765_4321L, 0},
                fields(sentParams(Call.last("RFID_Untraceable"), 24),
                        0, 1, 1, 1, 2, 1, 3, 1, 4, 4, 8, 1, 9, 1, 10, 1, 11, 1, 12, 4, 16, 4, 20, 4));

        UNTRACEABLE_PARAMS other = new UNTRACEABLE_PARAMS();
        other.assertU = true;
        other.EPCLength = (byte) 0x9F;
        other.hideUser = true;
        ORLANatives.RFID_Untraceable(NO_READER, TAG_ID, 6, other, null, null, null, null, null, true);
        assertArrayEquals(new long[] {1, 0, 0x9F, 0, 1}, fields(Call.last("RFID_Untraceable").blob("params"),
                0, 1, 1, 1, 2, 1, 4, 4, 8, 1));
    }

    @Test
    void cryptoSendsThreeChallengeWords() {
        CRYPTO_PARAMS p = new CRYPTO_PARAMS();
        p.keyID = (byte) 0x81;
        p.IChallenge = new int[] {-1, 0x1234_5678, 0x8000_0000, 0x5555_5555};
        p.customData = true;
        p.profile = 2;
        p.offset = (byte) 0xF0;
        p.blockCount = 3;
        p.protMode = (byte) 0x80;
        p.accessPassword = PASSWORD;
        ORLANatives.RFID_Crypto(NO_READER, TAG_ID, 6, p, null, null, null, null, null, true);
        byte[] record = sentParams(Call.last("RFID_Crypto"), 28);
        assertArrayEquals(new long[] {0x81, 0xFFFF_FFFFL, 0x1234_5678, 0x8000_0000L, 1, 2, 0xF0, 3, 0x80,
            0x8765_4321L}, fields(record, 0, 1, 4, 4, 8, 4, 12, 4, 16, 1, 17, 1, 18, 1, 19, 1, 20, 1, 24, 4),
                "the fourth challenge word is not read");
        assertZero(record, 1, 4);
        assertZero(record, 21, 24);
    }
}
