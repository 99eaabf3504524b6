package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;
import static org.junit.jupiter.api.Assertions.assertNull;

import com.kovra.rfid.orla.sim.Bytes;
import com.kovra.rfid.orla.sim.SimControl;
import java.util.LinkedHashMap;
import java.util.Map;
import org.junit.jupiter.api.Test;

/** Profiles, software and radio updates, user applications and the LLRP configuration's persistence. */
class ProfilesAppsTest extends NativeTest {

    private interface NameCall {
        int call(int reader, String name);
    }

    private static byte[] blob(String fn, String name) {
        return SimControl.blob(fn, -1, name);
    }

    private static long arg(String fn, int i) {
        return SimControl.args(fn, -1)[i];
    }

    @Test
    void singleNameCallsSendA260CharacterBufferAndReturnTheStatus() {
        Map<String, NameCall> calls = new LinkedHashMap<>();
        calls.put("RFID_DeleteProfileW", ORLANatives::RFID_DeleteProfile);
        calls.put("RFID_SetActiveProfileW", ORLANatives::RFID_SetActiveProfile);
        calls.put("RFID_UpdateRadioConfigW", ORLANatives::RFID_UpdateRadioConfig);
        calls.put("RFID_UpdateRadioFirmwareW", ORLANatives::RFID_UpdateRadioFirmware);
        calls.put("RFID_InstallUserAppW", ORLANatives::RFID_InstallUserApp);
        calls.put("RFID_UninstallUserAppW", ORLANatives::RFID_UninstallUserApp);
        calls.put("RFID_StartUserAppW", ORLANatives::RFID_StartUserApp);
        calls.put("RFID_StopUserAppW", ORLANatives::RFID_StopUserApp);
        int status = 40;
        for (Map.Entry<String, NameCall> entry : calls.entrySet()) {
            String fn = entry.getKey();
            SimControl.setStatus(fn, ++status);
            assertEquals(status, entry.getValue().call(-2, "name of " + fn), fn);
            assertEquals(-2L, arg(fn, 0), fn + ": handle sign-extended");
            byte[] name = blob(fn, "name");
            assertEquals(TEXT_BYTES, name.length, fn);
            assertEquals("name of " + fn, text(name, 0), fn);

            entry.getValue().call(-2, null);
            assertZero(blob(fn, "name"), 0, TEXT_BYTES);
            entry.getValue().call(-2, letters(TEXT_CHARS + 9));
            assertEquals(letters(TEXT_CHARS), text(blob(fn, "name"), 0), fn + ": cut, no terminator");
        }
    }

    @Test
    void importAndExportKeepTheJavaOrderAndExportNormalisesItsFlag() {
        int reader = connect();
        assertEquals(0, ORLANatives.RFID_ImportProfileFromReader(reader, "dense", "/tmp/dense.xml"));
        assertEquals("dense", text(blob("RFID_ImportProfileFromReaderW", "first"), 0));
        assertEquals("/tmp/dense.xml", text(blob("RFID_ImportProfileFromReaderW", "second"), 0));

        assertEquals(0, ORLANatives.RFID_ExportProfileToReader(reader, "/tmp/fast.xml", null, true));
        assertEquals("/tmp/fast.xml", text(blob("RFID_ExportProfileToReaderW", "first"), 0));
        assertZero(blob("RFID_ExportProfileToReaderW", "second"), 0, TEXT_BYTES);
        assertEquals(1L, arg("RFID_ExportProfileToReaderW", 3));
        SimControl.setStatus("RFID_ExportProfileToReaderW", FAILED);
        assertEquals(FAILED, ORLANatives.RFID_ExportProfileToReader(reader, "a", "b", false));
        assertEquals(0L, arg("RFID_ExportProfileToReaderW", 3));

        assertEquals(0, ORLANatives.RFID_InstallUserApp(reader, "scanner.pkg"));
        assertEquals(0, ORLANatives.RFID_SetAutoStartUserApp(reader, "scanner", true));
        assertEquals("scanner", text(blob("RFID_SetUserAppAutoStartW", "name"), 0));
        assertEquals(1L, arg("RFID_SetUserAppAutoStartW", 2));
        assertEquals(0, ORLANatives.RFID_SetAutoStartUserApp(reader, "scanner", false));
        assertEquals(0L, arg("RFID_SetUserAppAutoStartW", 2));
    }

    @Test
    void profileNamesAreJoinedWithColons() {
        int reader = connect();
        SimControl.setOutput("RFID_GetProfileListW", nameList(2, names("P1", "P2"), 0xFFFF));
        PROFILE_LIST list = new PROFILE_LIST();
        assertEquals(0, ORLANatives.RFID_GetProfileList(reader, list));
        assertEquals("P1:P2", list.ProfileNamesList);
        assertArrayEquals(new short[] {2, -1}, new short[] {list.numProfiles, list.activeProfileIndex});

        SimControl.setOutput("RFID_GetProfileListW", nameList(3, names("", letters(700), "x"), 1));
        assertEquals(0, ORLANatives.RFID_GetProfileList(reader, list));
        assertEquals(":" + letters(700) + ":x", list.ProfileNamesList);

        SimControl.setOutput("RFID_GetProfileListW", nameList(0, 0, 0));
        assertEquals(0, ORLANatives.RFID_GetProfileList(reader, list));
        assertEquals("", list.ProfileNamesList);
    }

    @Test
    void softwareUpdateSendsItsThreeFieldsAndReadsItsProgress() {
        int reader = connect();
        UPDATE_INFO update = new UPDATE_INFO();
        update.hostName = "ftp://10.0.0.9/build";
        update.userName = "operator";
        update.password = null;
        assertEquals(0, ORLANatives.RFID_UpdateSoftware(reader, update));
        byte[] record = blob("RFID_UpdateSoftwareW", "updateInfo");
        assertEquals(3120, record.length);
        assertEquals("ftp://10.0.0.9/build", text(record, 0));
        assertEquals("operator", text(record, 1040));
        assertZero(record, 2080, 2080 + ReaderInfoTest.CLEARED_HEAD_BYTES);

        update.password = letters(TEXT_CHARS + 1);
        ORLANatives.RFID_UpdateSoftware(reader, update);
        assertEquals(letters(TEXT_CHARS), text(blob("RFID_UpdateSoftwareW", "updateInfo"), 2080));

        SimControl.setOutput("RFID_GetUpdateStatusW",
                new Bytes.Builder(1144).s32(0, -1).wide(4, "copying image 3/7", 285).build());
        UPDATE_STATUS status = new UPDATE_STATUS();
        assertEquals(0, ORLANatives.RFID_GetUpdateStatus(reader, status));
        assertEquals(1144, blob("RFID_GetUpdateStatusW", "status").length);
        assertEquals(-1, status.percentage);
        assertEquals("copying image 3/7", status.updateInfo);
    }

    private static USER_APP_INFO[] apps(int n) {
        USER_APP_INFO[] apps = new USER_APP_INFO[n];
        for (int i = 0; i < n; i++) {
            apps[i] = new USER_APP_INFO();
        }
        return apps;
    }

    /**
     * A list of two entries; its count field says 9, which the library must not read. The flag bytes 3 and 2
     * reach Java as they stand, of which the virtual machine keeps bit 0: true and false.
     */
    private static byte[] twoApps() {
        byte[] entries = new Bytes.Builder(48)
                .ptr(0, SimControl.allocWide("logger")).u8(8, 3).u8(9, 2).ptr(16, SimControl.allocWide("v1.2"))
                .ptr(24, SimControl.allocWide("bridge")).u8(32, 2).u8(33, 3).ptr(40, SimControl.allocWide("beta"))
                .build();
        return new Bytes.Builder(16).u32(0, 9).ptr(8, SimControl.alloc(entries)).build();
    }

    @Test
    void listedAppsFillAsManyObjectsAsTheJavaArrayHolds() {
        int reader = connect();
        SimControl.setOutput("RFID_ListUserAppsW", twoApps());
        USER_APP_INFO[] both = apps(2);
        assertEquals(0, ORLANatives.RFID_ListUserApps(reader, both));
        assertArrayEquals(new String[] {"logger", "v1.2", "bridge", "beta"},
                new String[] {both[0].appName, both[0].Metadata, both[1].appName, both[1].Metadata});
        assertArrayEquals(new boolean[] {true, false, false, true},
                new boolean[] {both[0].runStatus, both[0].autoStart, both[1].runStatus, both[1].autoStart});

        USER_APP_INFO[] one = apps(1);
        assertEquals(0, ORLANatives.RFID_ListUserApps(reader, one));
        assertEquals("logger", one[0].appName);
        assertEquals(0, ORLANatives.RFID_ListUserApps(reader, apps(0)));

        SimControl.setOutput("RFID_ListUserAppsW", new Bytes.Builder(16).u32(0, 2).build());
        USER_APP_INFO[] noEntries = apps(2);
        assertEquals(0, ORLANatives.RFID_ListUserApps(reader, noEntries), "a null entry pointer writes nothing");
        assertNull(noEntries[0].appName);
    }

    @Test
    void installedAppCountIsReturnedWhateverTheStatus() {
        SimControl.setOutput("rfid_GetNumInstalledApps", new Bytes.Builder(4).u32(0, 0x8000_0007L).build());
        assertEquals(0x8000_0007, ORLANatives.RFID_NumInstalledApps(-5));
        assertEquals(-5L, arg("rfid_GetNumInstalledApps", 0), "handle sign-extended to pointer width");
        assertArrayEquals(new byte[4], blob("rfid_GetNumInstalledApps", "count"), "preset to 0");

        SimControl.setOutput("rfid_GetNumInstalledApps", new Bytes.Builder(4).u32(0, 9).build());
        SimControl.setStatus("rfid_GetNumInstalledApps", FAILED);
        assertEquals(9, ORLANatives.RFID_NumInstalledApps(-5), "the count, not the status");
    }
}
