package com.kovra.rfid.orla;

import static org.junit.jupiter.api.Assertions.assertArrayEquals;
import static org.junit.jupiter.api.Assertions.assertEquals;

import com.kovra.rfid.orla.sim.Bytes;
import com.kovra.rfid.orla.sim.SimControl;
import java.lang.reflect.Field;
import java.util.Arrays;
import org.junit.jupiter.api.BeforeAll;
import org.junit.jupiter.api.BeforeEach;

/**
 * Base of the tests that call the natives: loads the simulated reader API
 * and the JNI library once, and starts every test with an empty journal
 * that records every call, no scripted statuses and no open sessions. Also holds the fixtures the
 * test classes share: a connected reader, little-endian field reads of
 * captured records, and builders of Java objects and scripted records.
 */
public abstract class NativeTest {

    /** What the simulated reader answers for a handle that is no open session. */
    static final int INVALID_HANDLE = 1;
    /** A status scripted for a failing call. */
    static final int FAILED = 9;
    /** Characters of the fixed wide-text fields of the reader's records. */
    static final int TEXT_CHARS = 260;
    static final int TEXT_BYTES = 4 * TEXT_CHARS;

    @BeforeAll
    static void loadLibraries() {
        OrlaLibrary.load();
    }

    @BeforeEach
    void resetSimulator() {
        SimControl.reset();
        SimControl.record(true);
    }

    /** Opens a session on the simulated reader and returns its handle. */
    static int connect() {
        long[] handle = {0};
        assertEquals(0, ORLANatives.RFID_Connect(handle, "sim", 0, 0, new CONNECTION_INFO()));
        return (int) handle[0];
    }

    /** Unsigned little-endian fields of a record, given as (offset, width in bytes) pairs. */
    static long[] fields(byte[] b, int... offsetWidth) {
        long[] values = new long[offsetWidth.length / 2];
        for (int i = 0; i < values.length; i++) {
            int off = offsetWidth[2 * i];
            int width = offsetWidth[2 * i + 1];
            values[i] = width == 8 ? Bytes.s64(b, off) : width == 4 ? Bytes.u32(b, off)
                    : width == 2 ? Bytes.u16(b, off) : Bytes.u8(b, off);
        }
        return values;
    }

    static void assertZero(byte[] record, int from, int to) {
        assertArrayEquals(new byte[to - from], Arrays.copyOfRange(record, from, to), "bytes " + from + " to " + to);
    }

    /** The text of a 260-character field of a captured record; all 260 when it has no terminator. */
    static String text(byte[] record, int off) {
        return Bytes.wide(record, off, TEXT_CHARS);
    }

    /** length letters A..Z, repeating. */
    static String letters(int length) {
        StringBuilder sb = new StringBuilder(length);
        for (int i = 0; i < length; i++) {
            sb.append((char) ('A' + i % 26));
        }
        return sb.toString();
    }

    static RFID_VERSION lastVersion() {
        RFID_VERSION[] all = RFID_VERSION.values();
        return all[all.length - 1];
    }

    /**
     * Stores a raw byte into a boolean field of object, as native code can leave it; Java code itself only
     * ever stores 0 or 1 there.
     */
    static void rawBoolean(Object object, String field, int value) {
        try {
            Class<?> unsafeClass = Class.forName("sun.misc.Unsafe");
            Field theUnsafe = unsafeClass.getDeclaredField("theUnsafe");
            theUnsafe.setAccessible(true);
            Object unsafe = theUnsafe.get(null);
            long offset = (long) unsafeClass.getMethod("objectFieldOffset", Field.class)
                    .invoke(unsafe, object.getClass().getField(field));
            unsafeClass.getMethod("putByte", Object.class, long.class, byte.class)
                    .invoke(unsafe, object, offset, (byte) value);
        } catch (ReflectiveOperationException e) {
            throw new AssertionError(e);
        }
    }

    /** The shorts first, first + 1, ... first + 7: the members of a calendar time in their order. */
    static short[] sequence(int first) {
        short[] s = new short[8];
        for (int i = 0; i < 8; i++) {
            s[i] = (short) (first + i);
        }
        return s;
    }

    /** A calendar time at off whose members are first, first + 1, ... first + 7. */
    static Bytes.Builder systemTime(Bytes.Builder b, int off, int first) {
        for (int i = 0; i < 8; i++) {
            b.u16(off + 2 * i, first + i);
        }
        return b;
    }

    /** A Java calendar time whose members are first, first + 1, ... first + 7. */
    static SYSTEMTIME time(int first) {
        short[] m = sequence(first);
        SYSTEMTIME t = new SYSTEMTIME();
        t.Year = m[0];
        t.Month = m[1];
        t.DayOfWeek = m[2];
        t.Day = m[3];
        t.Hour = m[4];
        t.Minute = m[5];
        t.Second = m[6];
        t.Milliseconds = m[7];
        return t;
    }

    static short[] members(SYSTEMTIME t) {
        return new short[] {t.Year, t.Month, t.DayOfWeek, t.Day, t.Hour, t.Minute, t.Second, t.Milliseconds};
    }

    /** A C string table: the names as wide strings and an array of pointers to them. */
    static long names(String... names) {
        Bytes.Builder table = new Bytes.Builder(8 * Math.max(names.length, 1));
        for (int i = 0; i < names.length; i++) {
            table.ptr(8 * i, SimControl.allocWide(names[i]));
        }
        return SimControl.alloc(table.build());
    }

    /** The 24-byte name list of time zones and profiles: count, table of names, active index. */
    static byte[] nameList(int count, long table, int active) {
        return new Bytes.Builder(24).u16(0, count).ptr(8, table).u16(16, active).build();
    }

    /** A 192-byte tag record with every field set, seen times in the calendar form, no optional records. */
    static Bytes.Builder fullRecord(byte[] tagID) {
        Bytes.Builder b = new Bytes.Builder(192).u32(0, 0x8000_0001L).u32(4, 192)
                .ptr(8, SimControl.alloc(tagID)).u32(16, tagID.length).u32(20, 64)
                .u16(24, 0xFFFF).u32(28, 0xFFFF_FFFEL).u16(32, 0x8001).u16(34, 0xFFFE)
                .u8(72, 0xC4).u16(74, 0x8000).u16(76, 0x8000).u32(84, 7).u32(88, 3)
                .ptr(96, SimControl.alloc(new byte[] {(byte) 0xAB, 0x0C, (byte) 0xDE}))
                .u32(104, 0xFFFF_FFFFL).u32(108, 3).u32(112, 8).u32(116, 2).u16(168, 0xFED4);
        return systemTime(systemTime(systemTime(b, 40, 0x7FFE), 56, 2024), 120, 0xFFF0);
    }

    /** A tag object whose optionally written fields hold recognisable values. */
    static TAG_DATA markedTag() {
        TAG_DATA tag = new TAG_DATA();
        tag.seenTime.upTime.firstSeenTimeStamp = 77;
        tag.seenTime.utcTime.firstSeenTimeStamp.Year = 77;
        tag.AccessOperationResult.value.qtData.qtControlData = 77;
        tag.AccessOperationResult.value.nxpChangeConfigWordResult.ChangeConfigWord = 77;
        tag.AccessOperationResult.value.authenticateReadBufferResult = "kept";
        tag.gpsLocation.longitude = 77;
        tag.location.relativeDistance = 77;
        tag.isContainLocationInfo = true;
        return tag;
    }
}
