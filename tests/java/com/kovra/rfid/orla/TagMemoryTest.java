package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNull;

import com.kovra.rfid.orla.sim.SimReader;
import java.util.ArrayList;
import java.util.List;
import java.util.Map;
import java.util.TreeMap;
import org.junit.jupiter.api.BeforeEach;
import org.junit.jupiter.api.Test;

/**
 * The simulated reader as a Java program sees it through ORLANatives: tag memory that writes change and
 * reads return, locks and passwords that refuse with a reader's statuses and a last error that says why,
 * kills and new EPCs that later inventories show, and access sequences that run on every tag they meet.
 */
class TagMemoryTest extends NativeTest {

    static final int NOT_FOUND = RFID_STATUS.RFID_NOT_FOUND.ordinal();
    static final int MEMORY_OVERRUN = RFID_STATUS.RFID_MEMORY_OVERRUN.ordinal();
    static final int MEMORY_LOCKED = RFID_STATUS.RFID_MEMORY_LOCKED.ordinal();
    static final int WRONG_PASSWORD = RFID_STATUS.RFID_PASSWORD_MISMATCH.ordinal();

    static final String OPEN = "300000000000000000000001";
    static final String LOCKED = "300000000000000000000002";
    static final String PERMA = "300000000000000000000003";
    static final String SHORT = "3000000000000004";

    /** One tag an antenna: an open one, one with its USER bank locked, one with permalocks, one to kill. */
    static final String TAGS = String.join("\n",
            "EPC=" + OPEN + " USER=0011223344556677 ANT=1 RSSI=-40",
            "EPC=" + LOCKED + " USER=8899AABBCCDDEEFF ACCESS=11112222 LOCK=USER:locked ANT=2 RSSI=-40",
            "EPC=" + PERMA + " TID=E2801105AABBCCDD USER=0000000000000000 ACCESS=0000AAAA"
                    + " LOCK=ACCESS:permalocked,TID:permalocked PERMALOCK=USER:1 ANT=3 RSSI=-40",
            "EPC=" + SHORT + " KILL=0000BEEF ANT=4 RSSI=-40");

    int reader;

    @BeforeEach
    void loadTagsAndConnect() {
        assertNull(SimReader.loadTags(TAGS));
        reader = connect();
    }

    static byte[] hex(String digits) {
        byte[] b = new byte[digits.length() / 2];
        for (int i = 0; i < b.length; i++) {
            b[i] = (byte) Integer.parseInt(digits.substring(2 * i, 2 * i + 2), 16);
        }
        return b;
    }

    int write(String epc, MEMORY_BANK bank, int offset, String data, long password) {
        WRITE_ACCESS_PARAMS p = new WRITE_ACCESS_PARAMS();
        p.memoryBank = bank;
        p.byteOffset = (short) offset;
        p.writeData = hex(data);
        p.writeDataLength = (short) p.writeData.length;
        p.accessPassword = password;
        return ORLANatives.RFID_Write(reader, epc, epc.length() / 2, p, null, null);
    }

    static READ_ACCESS_PARAMS readParams(MEMORY_BANK bank, int offset, int count, long password) {
        READ_ACCESS_PARAMS p = new READ_ACCESS_PARAMS();
        p.memoryBank = bank;
        p.byteOffset = (short) offset;
        p.byteCount = (short) count;
        p.accessPassword = password;
        return p;
    }

    /** The bytes read as hexadecimal text, or "status N" when the read fails. */
    String read(String epc, MEMORY_BANK bank, int offset, int count, long password, short... antennas) {
        TAG_DATA tag = new TAG_DATA();
        ANTENNA_INFO selection = antennas.length == 0 ? null : new ANTENNA_INFO(antennas);
        int status = ORLANatives.RFID_Read(reader, epc, epc.length() / 2, readParams(bank, offset, count, password),
                null, selection, tag, null, null, true);
        return status == 0 ? tag.memoryBankData : "status " + status;
    }

    int writeField(String fn, String epc, String data, long password) {
        WRITE_FIELD_ACCESS_PARAMS p = new WRITE_FIELD_ACCESS_PARAMS();
        p.writeData = hex(data);
        p.writeDataLength = (short) p.writeData.length;
        p.accessPassword = password;
        int length = epc.length() / 2;
        return fn.equals("tag ID") ? ORLANatives.RFID_WriteTagID(reader, epc, length, p, null)
                : ORLANatives.RFID_WriteAccessPassword(reader, epc, length, p, null);
    }

    int lock(String epc, int field, int privilege, long password) {
        LOCK_ACCESS_PARAMS p = new LOCK_ACCESS_PARAMS();
        p.enumPrivilege[field] = (short) privilege;
        p.accessPassword = password;
        return ORLANatives.RFID_Lock(reader, epc, epc.length() / 2, p, null, null);
    }

    int kill(String epc, long password) {
        KILL_ACCESS_PARAMS p = new KILL_ACCESS_PARAMS();
        p.killPassword = password;
        return ORLANatives.RFID_Kill(reader, epc, epc.length() / 2, p, null, null);
    }

    String lastError() {
        ERROR_INFO info = new ERROR_INFO();
        assertEquals(0, ORLANatives.RFID_GetLastErrorInfo(reader, info));
        return info.vendorMessage;
    }

    int event(RFID_EVENT_TYPE type) {
        int event = (int) ORLANatives.rfidUtils_CreateEvent(0, 1, 0);
        assertEquals(0, ORLANatives.RFID_RegisterEventNotification(reader, type, event));
        return event;
    }

    static TRIGGER_INFO oneRound() {
        TRIGGER_INFO trigger = new TRIGGER_INFO();
        trigger.stopTrigger.type = STOP_TRIGGER_TYPE.STOP_TRIGGER_TYPE_N_ATTEMPTS_WITH_TIMEOUT;
        trigger.stopTrigger.value.numAttempts = new TRIGGER_WITH_TIMEOUT();
        trigger.stopTrigger.value.numAttempts.n = 1;
        return trigger;
    }

    /** Every read in the tag buffer, in batches of two (each tag costs the library a few local references). */
    List<TAG_DATA> fetchAll() {
        List<TAG_DATA> all = new ArrayList<>();
        int[] count = {0};
        do {
            TAG_DATA[] batch = {new TAG_DATA(), new TAG_DATA()};
            assertEquals(0, ORLANatives.rfid_GetReadTags(reader, batch.length, batch, count, true));
            all.addAll(List.of(batch).subList(0, count[0]));
        } while (count[0] > 0);
        return all;
    }

    /** One inventory round on every antenna: the tags it reports by EPC. */
    Map<String, TAG_DATA> inventory() {
        int stop = event(RFID_EVENT_TYPE.INVENTORY_STOP_EVENT);
        assertEquals(0, ORLANatives.RFID_PerformInventory(reader, null, null, oneRound()));
        assertEquals(0, ORLANatives.rfidUtils_WaitForSingleObject(stop, 5000), "the round ends");
        assertEquals(0, ORLANatives.RFID_StopInventory(reader));
        Map<String, TAG_DATA> seen = new TreeMap<>();
        for (TAG_DATA tag : fetchAll()) {
            seen.put(tag.tagID, tag);
        }
        return seen;
    }

    @Test
    void writesStayForTheProcessAcrossSessionsUntilTheSimulatorIsReset() {
        assertEquals(0, write(OPEN, MEMORY_BANK.MEMORY_BANK_USER, 2, "CAFE", 0));
        assertEquals("0011CAFE44556677", read(OPEN, MEMORY_BANK.MEMORY_BANK_USER, 0, 0, 0), "same session");
        assertEquals(0, ORLANatives.RFID_DisConnect(reader));
        reader = connect();
        assertEquals("CAFE44", read(OPEN, MEMORY_BANK.MEMORY_BANK_USER, 2, 3, 0), "after a reconnect");
        assertNull(SimReader.loadTags(TAGS));
        assertEquals("0011223344556677", read(OPEN, MEMORY_BANK.MEMORY_BANK_USER, 0, 0, 0), "a reload restores");

        TAG_DATA tag = new TAG_DATA();
        assertEquals(0, ORLANatives.RFID_Read(reader, OPEN, 12, readParams(MEMORY_BANK.MEMORY_BANK_USER, 6, 2, 0),
                null, null, tag, null, null, true));
        assertArrayEquals(new Object[] {OPEN, 0, 0, 3, 6, "6677", (short) 1, (short) -40},
                new Object[] {tag.tagID, tag.enumOPCode, tag.enumOPStatus, tag.enumMemoryBank,
                    tag.memoryBankDataByteOffset, tag.memoryBankData, tag.antennaID, tag.peakRSSI},
                "the result tag: the tag, the operation and its data, seen at the tag's own level");
        assertEquals(0, SimReader.liveTagRecords(reader), "the result tag was given back");
    }

    /** A reader's refusals, in order on the same tags: the status, and the last error that explains it. */
    @Test
    void refusalsComeWithTheirStatusAndTheReasonInTheLastError() {
        final long pass = 0x5555AAAAL;
        Object[][] steps = {
            {(Step) () -> write(LOCKED, MEMORY_BANK.MEMORY_BANK_USER, 0, "1234", 0), WRONG_PASSWORD,
                "RFID_Write: the USER bank is locked: the access password is needed"},
            {(Step) () -> write(LOCKED, MEMORY_BANK.MEMORY_BANK_USER, 0, "1234", 0x11110000L), WRONG_PASSWORD,
                "RFID_Write: access password does not match for the USER bank"},
            {(Step) () -> write(LOCKED, MEMORY_BANK.MEMORY_BANK_USER, 0, "1234", 0x1_1111_2222L), 0, null},
            {(Step) () -> write(OPEN, MEMORY_BANK.MEMORY_BANK_USER, 1, "1234", 0), 2,
                "RFID_Write: memory is written in whole words: byte offset 1 and length 2 must be even, the length not 0"},
            {(Step) () -> write(OPEN, MEMORY_BANK.MEMORY_BANK_USER, 6, "12345678", 0), MEMORY_OVERRUN,
                "RFID_Write: bytes 6 to 9 are past the end of the USER bank (8 bytes)"},
            {(Step) () -> write(PERMA, MEMORY_BANK.MEMORY_BANK_TID, 0, "0000", 0xAAAA), MEMORY_LOCKED,
                "RFID_Write: the TID bank is permalocked"},
            {(Step) () -> write(PERMA, MEMORY_BANK.MEMORY_BANK_USER, 2, "FFFF", 0xAAAA), MEMORY_LOCKED,
                "RFID_Write: USER block 1 is permalocked"},
            {(Step) () -> write(PERMA, MEMORY_BANK.MEMORY_BANK_USER, 4, "FFFF", 0xAAAA), 0, null},
            {(Step) () -> lock(PERMA, 1, 4, 0xAAAA), MEMORY_LOCKED,
                "RFID_Lock: the access password is permalocked for good"},
            // lock the open tag's USER bank behind a new password; then writes need it
            {(Step) () -> writeField("access password", OPEN, "5555AAAA", 0), 0, null},
            {(Step) () -> lock(OPEN, 4, 1, 0), WRONG_PASSWORD, "RFID_Lock: the lock needs the access password"},
            {(Step) () -> lock(OPEN, 4, 1, pass), 0, null},
            {(Step) () -> write(OPEN, MEMORY_BANK.MEMORY_BANK_USER, 0, "BEEF", 0), WRONG_PASSWORD,
                "RFID_Write: the USER bank is locked: the access password is needed"},
            {(Step) () -> write(OPEN, MEMORY_BANK.MEMORY_BANK_USER, 0, "BEEF", pass), 0, null},
            {(Step) () -> kill(SHORT, 0xBEEE), WRONG_PASSWORD, "RFID_Kill: kill password does not match"},
            {(Step) () -> kill(OPEN, 0x1234), WRONG_PASSWORD,
                "RFID_Kill: the tag's kill password is 0: it cannot be killed"},
            {(Step) () -> write("3000DEAD", MEMORY_BANK.MEMORY_BANK_USER, 0, "1234", 0), NOT_FOUND,
                "RFID_Write: found no EPC 3000DEAD on antennas 1, 2, 3, 4"},
        };
        assertEquals("Incorrect tag password", ORLANatives.RFID_GetErrorDescription(RFID_STATUS.RFID_PASSWORD_MISMATCH));
        for (Object[] step : steps) {
            String expected = (String) step[2];
            assertEquals(step[1], ((Step) step[0]).run(), expected);
            if (expected != null) {
                assertEquals(expected, lastError());
            }
        }
        assertEquals("1234AABBCCDDEE", read(LOCKED, MEMORY_BANK.MEMORY_BANK_USER, 0, 7, 0), "locked banks read");
        assertEquals("BEEF2233", read(OPEN, MEMORY_BANK.MEMORY_BANK_USER, 0, 4, 0));
        assertEquals("00000000FFFF0000", read(PERMA, MEMORY_BANK.MEMORY_BANK_USER, 0, 0, 0));
        assertEquals("status 9", read(PERMA, MEMORY_BANK.MEMORY_BANK_RESERVED, 4, 4, 0xAAAA));
        assertEquals("RFID_Read: the access password is permalocked", lastError());
        assertEquals("00000000", read(PERMA, MEMORY_BANK.MEMORY_BANK_RESERVED, 0, 4, 0), "the kill password is not");
        assertEquals("status 6", read(OPEN, MEMORY_BANK.MEMORY_BANK_USER, 0, 2, pass, (short) 2, (short) 3),
                "not in the field of antennas 2 and 3");
        assertEquals("RFID_Read: found no EPC " + OPEN + " on antennas 2, 3", lastError());
        assertEquals("status 8", read(OPEN, MEMORY_BANK.MEMORY_BANK_USER, 8, 2, 0));
        assertEquals("RFID_Read: bytes 8 to 9 are past the end of the USER bank (8 bytes)", lastError());
    }

    interface Step {
        int run();
    }

    @Test
    void aKilledTagLeavesTheFieldAndANewEpcIsReportedWithItsPcAndCrc() {
        assertEquals(0, kill(SHORT, 0xBEEF));
        assertEquals(0, writeField("tag ID", OPEN, "3000AAAA", 0));
        Map<String, TAG_DATA> seen = inventory();
        assertEquals(List.of(LOCKED, PERMA, "3000AAAA"), List.copyOf(seen.keySet()));
        TAG_DATA renamed = seen.get("3000AAAA");
        assertEquals(0x1000, renamed.PC, "two EPC words");
        assertEquals(Integer.parseInt(read("3000AAAA", MEMORY_BANK.MEMORY_BANK_EPC, 0, 2, 0), 16), renamed.CRC,
                "the CRC the EPC bank holds");
        assertEquals("10003000AAAA", read("3000AAAA", MEMORY_BANK.MEMORY_BANK_EPC, 2, 6, 0));
        assertEquals("status 6", read(SHORT, MEMORY_BANK.MEMORY_BANK_EPC, 0, 0, 0), "killed for good");
        assertEquals("status 6", read(OPEN, MEMORY_BANK.MEMORY_BANK_EPC, 0, 0, 0), "the old EPC is gone");
    }

    static ACCESS_OPERATION readOperation(int count) {
        ACCESS_OPERATION op = new ACCESS_OPERATION();
        op.opCode = ACCESS_OPERATION_CODE.ACCESS_OPERATION_READ;
        op.readAccessParamsStruct = readParams(MEMORY_BANK.MEMORY_BANK_USER, 0, count, 0);
        return op;
    }

    static ACCESS_OPERATION writeOperation(String data) {
        ACCESS_OPERATION op = new ACCESS_OPERATION();
        op.opCode = ACCESS_OPERATION_CODE.ACCESS_OPERATION_WRITE;
        op.writeAccessParamsStruct.memoryBank = MEMORY_BANK.MEMORY_BANK_USER;
        op.writeAccessParamsStruct.writeData = hex(data);
        op.writeAccessParamsStruct.writeDataLength = (short) 2;
        return op;
    }

    @Test
    void anAccessSequenceRunsItsOperationsOnEveryTagItMeets() {
        int[] index = {-1};
        assertEquals(0, ORLANatives.RFID_InitializeAccessSequence(reader));
        assertEquals(0, ORLANatives.RFID_AddOperationToAccessSequence(reader, writeOperation("ABCD"), index));
        assertEquals(0, ORLANatives.RFID_AddOperationToAccessSequence(reader, readOperation(4), index));
        assertEquals(1, index[0]);
        int start = event(RFID_EVENT_TYPE.ACCESS_START_EVENT);
        int stop = event(RFID_EVENT_TYPE.ACCESS_STOP_EVENT);

        assertEquals(0, ORLANatives.RFID_PerformAccessSequence(reader, null, new ANTENNA_INFO(new short[] {1, 2}),
                oneRound()));
        assertEquals(0, ORLANatives.rfidUtils_WaitForSingleObject(stop, 5000), "the round ends");
        assertEquals(0, ORLANatives.rfidUtils_WaitForSingleObject(start, 0), "it started");
        assertEquals(4, ORLANatives.RFID_PerformAccessSequence(reader, null, null, null), "it runs until stopped");
        assertEquals(0, ORLANatives.RFID_StopAccessSequence(reader));
        assertEquals(5, ORLANatives.RFID_StopAccessSequence(reader));

        Map<String, String> results = new TreeMap<>();
        for (TAG_DATA tag : fetchAll()) {
            results.put(tag.tagID + " op " + tag.enumOPCode, "status " + tag.enumOPStatus + " bank "
                    + tag.enumMemoryBank + " data " + tag.memoryBankData);
        }
        assertEquals(Map.of(
                OPEN + " op 1", "status 0 bank 3 data ",
                OPEN + " op 0", "status 0 bank 3 data ABCD2233",
                LOCKED + " op 1", "status " + WRONG_PASSWORD + " bank 3 data ",
                LOCKED + " op 0", "status 0 bank 3 data 8899AABB"), results, "antennas 1 and 2 only");
        int[] succeeded = {-1};
        int[] failed = {-1};
        assertEquals(0, ORLANatives.RFID_GetLastAccessResult(reader, succeeded, failed));
        assertArrayEquals(new int[] {3, 1}, new int[] {succeeded[0], failed[0]});

        assertEquals(0, ORLANatives.RFID_DeinitializeAccessSequence(reader));
        assertEquals(2, ORLANatives.RFID_PerformAccessSequence(reader, null, null, oneRound()));
        assertEquals("RFID_PerformAccessSequence: the access sequence holds no operation", lastError());
    }

    @Test
    void chipCommandsChangeWhatTheTagShows() {
        NXP_SET_EAS_PARAMS eas = new NXP_SET_EAS_PARAMS();
        eas.EASState = true;
        assertEquals(0, ORLANatives.RFID_NXPSetEAS(reader, OPEN, 12, eas, null, null));
        assertEquals(WRONG_PASSWORD, ORLANatives.RFID_NXPSetEAS(reader, LOCKED, 12, eas, null, null));
        assertEquals("RFID_NXPSetEAS: the EAS bit needs the access password", lastError());

        NXP_CHANGE_CONFIG_PARAMS config = new NXP_CHANGE_CONFIG_PARAMS();
        config.ChangeConfigWord = 0x0012;
        TAG_DATA tag = new TAG_DATA();
        for (int word : new int[] {0x0012, 0}) {
            assertEquals(0, ORLANatives.RFID_NXPChangeConfig(reader, OPEN, 12, config, null, null, tag, null, null,
                    true));
            assertEquals(word, tag.AccessOperationResult.value.nxpChangeConfigWordResult.ChangeConfigWord,
                    "ones toggle their bits");
            assertEquals(ACCESS_OPERATION_CODE.ACCESS_OPERATION_NXP_CHANGE_CONFIG.ordinal(), tag.enumOPCode);
        }

        NXP_READ_PROTECT_PARAMS protect = new NXP_READ_PROTECT_PARAMS();
        assertEquals(0, ORLANatives.RFID_NXPReadProtect(reader, OPEN, 12, protect, null, null));
        assertEquals("status 9", read(OPEN, MEMORY_BANK.MEMORY_BANK_USER, 0, 2, 0));
        assertEquals("RFID_Read: the tag is read-protected", lastError());
        assertEquals(0, ORLANatives.RFID_NXPResetReadProtect(reader, new NXP_RESET_READ_PROTECT_PARAMS(),
                new ANTENNA_INFO(new short[] {1})));
        assertEquals("0011", read(OPEN, MEMORY_BANK.MEMORY_BANK_USER, 0, 2, 0));

        IMPINJ_QT_WRITE_PARAMS qt = new IMPINJ_QT_WRITE_PARAMS();
        qt.qtData.qtControlData = (short) 0x8000;
        assertEquals(0, ORLANatives.RFID_ImpinjQTWrite(reader, OPEN, 12, qt, null, null));
        assertEquals("status 9", read(OPEN, MEMORY_BANK.MEMORY_BANK_USER, 0, 2, 0), "the public view hides USER");
        assertEquals(0, ORLANatives.RFID_ImpinjQTRead(reader, OPEN, 12, new IMPINJ_QT_READ_PARAMS(), null, null, tag,
                null, null, true));
        assertEquals((short) 0x8000, tag.AccessOperationResult.value.qtData.qtControlData);

        UNTRACEABLE_PARAMS hide = new UNTRACEABLE_PARAMS();
        hide.hideTID = TID_HIDE_STATE.HIDE_TID_SOME;
        hide.hideUser = true;
        hide.accessPassword = 0xAAAA;
        assertEquals(0, ORLANatives.RFID_Untraceable(reader, PERMA, 12, hide, null, null, null, null, null, true));
        assertEquals("E2801105", read(PERMA, MEMORY_BANK.MEMORY_BANK_TID, 0, 4, 0), "the class words stay readable");
        assertEquals("status 9", read(PERMA, MEMORY_BANK.MEMORY_BANK_TID, 0, 0, 0));
        assertEquals("status 9", read(PERMA, MEMORY_BANK.MEMORY_BANK_USER, 0, 2, 0));
        assertEquals("RFID_Read: the USER bank is hidden: the tag is untraceable", lastError());

        int alarm = event(RFID_EVENT_TYPE.NXP_EAS_ALARM_EVENT);
        int stop = event(RFID_EVENT_TYPE.INVENTORY_STOP_EVENT);
        assertEquals(0, ORLANatives.RFID_PerformNXPEASScan(reader, new ANTENNA_INFO(new short[] {1}), oneRound()));
        assertEquals(0, ORLANatives.rfidUtils_WaitForSingleObject(stop, 5000));
        assertEquals(0, ORLANatives.RFID_StopNXPEASScan(reader));
        assertEquals(0, ORLANatives.rfidUtils_WaitForSingleObject(alarm, 0), "the EAS bit set raises the alarm");
    }
}
