package com.kovra.rfid.orla.demo;

import com.kovra.rfid.orla.ANTENNA_INFO;
import com.kovra.rfid.orla.CONNECTION_INFO;
import com.kovra.rfid.orla.FILTER_MATCH_PATTERN;
import com.kovra.rfid.orla.MEMORY_BANK;
import com.kovra.rfid.orla.ORLANatives;
import com.kovra.rfid.orla.OrlaLibrary;
import com.kovra.rfid.orla.POST_FILTER;
import com.kovra.rfid.orla.RFID_EVENT_TYPE;
import com.kovra.rfid.orla.STOP_TRIGGER_TYPE;
import com.kovra.rfid.orla.TAG_DATA;
import com.kovra.rfid.orla.TAG_PATTERN;
import com.kovra.rfid.orla.TRIGGER_INFO;

import java.io.PrintStream;
import java.util.ArrayList;
import java.util.LinkedHashMap;
import java.util.List;
import java.util.Map;

/**
 * What a reader application does: connect, register for the read event, run an inventory with a
 * duration stop trigger and an optional EPC filter, fetch the tags in batches as the reads arrive,
 * show them in a live table, stop and disconnect.
 */
public final class ReaderDemo {

    private static final int WAIT_OBJECT_0 = 0;
    private static final int BATCH = 64;
    /** Bit offset of the EPC in the EPC bank (after the CRC and PC words). */
    private static final short EPC_BIT_OFFSET = 32;

    private final Options options;
    private final PrintStream out = System.out;
    private final Map<String, Row> rows = new LinkedHashMap<>();
    private final TAG_DATA[] batch = new TAG_DATA[BATCH];
    private final boolean live = System.console() != null;
    private long lastDraw;

    private ReaderDemo(Options options) {
        this.options = options;
        for (int i = 0; i < BATCH; i++) {
            batch[i] = new TAG_DATA();
        }
    }

    public static void main(String[] args) {
        Options options = Options.parse(args);
        if (options == null) {
            return;
        }
        OrlaLibrary.load();
        System.exit(new ReaderDemo(options).run());
    }

    private int run() {
        long[] handleOut = new long[1];
        int status = ORLANatives.RFID_Connect(handleOut, options.host, 5084, 0, new CONNECTION_INFO());
        if (status != 0) {
            return fail("connect", status);
        }
        int reader = (int) handleOut[0];
        out.printf("connected to %s, reader handle %d%n", options.host, reader);
        int readEvent = (int) ORLANatives.rfidUtils_CreateEvent(0, 0, 0);
        try {
            status = ORLANatives.RFID_RegisterEventNotification(reader, RFID_EVENT_TYPE.TAG_READ_EVENT, readEvent);
            if (status != 0) {
                return fail("register the read event", status);
            }
            status = ORLANatives.RFID_PerformInventory(reader, postFilter(), antennas(), durationTrigger());
            if (status != 0) {
                return fail("start the inventory", status);
            }
            out.printf("inventory running for %d ms%s%s%n", options.durationMs,
                    options.antennas == null ? "" : " on antennas " + options.antennasText,
                    options.epcPrefix == null ? "" : ", EPC prefix " + options.epcPrefix);
            collect(reader, readEvent);
            ORLANatives.RFID_StopInventory(reader);
            drain(reader);
            draw(true);
            ORLANatives.RFID_DeregisterEventNotification(reader, RFID_EVENT_TYPE.TAG_READ_EVENT);
            return 0;
        } finally {
            ORLANatives.rfidUtils_CloseHandle(readEvent);
            ORLANatives.RFID_DisConnect(reader);
            out.println("disconnected");
        }
    }

    /** Waits on the read event until the duration (and a short grace period) has passed. */
    private void collect(int reader, int readEvent) {
        long end = System.currentTimeMillis() + options.durationMs + 300;
        for (long now = System.currentTimeMillis(); now < end; now = System.currentTimeMillis()) {
            int wait = ORLANatives.rfidUtils_WaitForSingleObject(readEvent, (int) Math.min(200, end - now));
            if (wait == WAIT_OBJECT_0) {
                drain(reader);
                draw(false);
            }
        }
    }

    /** Fetches batches until the reader's buffer is empty. */
    private void drain(int reader) {
        int[] count = new int[1];
        while (true) {
            count[0] = 0;
            ORLANatives.rfid_GetReadTags(reader, BATCH, batch, count, true);
            for (int i = 0; i < count[0]; i++) {
                TAG_DATA tag = batch[i];
                rows.computeIfAbsent(tag.tagID + "/" + tag.antennaID, k -> new Row(tag.tagID, tag.antennaID))
                        .add(tag);
            }
            if (count[0] < BATCH) {
                return;
            }
        }
    }

    private void draw(boolean last) {
        long now = System.currentTimeMillis();
        if (!last && (!live || now - lastDraw < 250)) {
            return;
        }
        lastDraw = now;
        if (live && !last) {
            out.print("\033[H\033[2J");
        }
        out.printf("%-34s %7s %6s %7s  %s%n", "EPC", "antenna", "RSSI", "count", "field");
        List<Row> sorted = new ArrayList<>(rows.values());
        sorted.sort((a, b) -> a.epc.equals(b.epc) ? Short.compare(a.antenna, b.antenna) : a.epc.compareTo(b.epc));
        for (Row row : sorted) {
            out.printf("%-34s %7d %6d %7d  %s%n", row.epc, row.antenna, row.peakRssi, row.count,
                    now - row.lastReadMs < Row.GONE_AFTER_MS ? "here" : "gone");
        }
        out.printf("%d tags, %d reads%n", uniqueEpcs(), rows.values().stream().mapToLong(r -> r.count).sum());
    }

    private long uniqueEpcs() {
        return rows.values().stream().map(r -> r.epc).distinct().count();
    }

    private POST_FILTER postFilter() {
        if (options.epcPrefix == null) {
            return null;
        }
        byte[] bytes = hexToBytes(options.epcPrefix);
        short bits = (short) (options.epcPrefix.length() * 4);
        TAG_PATTERN pattern = new TAG_PATTERN();
        pattern.memoryBank = MEMORY_BANK.MEMORY_BANK_EPC;
        pattern.bitOffset = EPC_BIT_OFFSET;
        pattern.tagPattern = bytes;
        pattern.tagPatternBitCount = bits;
        pattern.tagMask = new byte[bytes.length];
        java.util.Arrays.fill(pattern.tagMask, (byte) 0xFF);
        pattern.tagMaskBitCount = bits;
        POST_FILTER filter = new POST_FILTER();
        filter.tagPatternA = pattern;
        filter.matchPattern = FILTER_MATCH_PATTERN.A;
        return filter;
    }

    private ANTENNA_INFO antennas() {
        return options.antennas == null ? null : new ANTENNA_INFO(options.antennas);
    }

    private TRIGGER_INFO durationTrigger() {
        TRIGGER_INFO trigger = new TRIGGER_INFO();
        trigger.stopTrigger.type = STOP_TRIGGER_TYPE.STOP_TRIGGER_TYPE_DURATION;
        trigger.stopTrigger.value.duration = options.durationMs;
        return trigger;
    }

    private int fail(String what, int status) {
        System.err.printf("could not %s: status %d%n", what, status);
        return 1;
    }

    static byte[] hexToBytes(String hex) {
        String even = hex.length() % 2 == 0 ? hex : hex + "0";
        byte[] bytes = new byte[even.length() / 2];
        for (int i = 0; i < bytes.length; i++) {
            bytes[i] = (byte) Integer.parseInt(even.substring(2 * i, 2 * i + 2), 16);
        }
        return bytes;
    }

    /** One line of the table: a tag as seen by one antenna; gone when that antenna has not read it for a second. */
    private static final class Row {
        static final long GONE_AFTER_MS = 1000;
        final String epc;
        final short antenna;
        short peakRssi = Short.MIN_VALUE;
        long count;
        long lastReadMs;

        Row(String epc, short antenna) {
            this.epc = epc;
            this.antenna = antenna;
        }

        void add(TAG_DATA tag) {
            peakRssi = (short) Math.max(peakRssi, tag.peakRSSI);
            count += Math.max(1, tag.tagSeenCount);
            lastReadMs = System.currentTimeMillis();
        }
    }

    /** Command-line options. */
    static final class Options {
        String host = "sim-reader";
        int durationMs = 3000;
        short[] antennas;
        String antennasText;
        String epcPrefix;

        static Options parse(String[] args) {
            Options o = new Options();
            for (int i = 0; i < args.length; i++) {
                String value = i + 1 < args.length ? args[i + 1] : null;
                switch (args[i]) {
                    case "--duration":
                        o.durationMs = Integer.parseInt(required(args[i], value));
                        i++;
                        break;
                    case "--antennas":
                        o.antennasText = required(args[i], value);
                        String[] ids = o.antennasText.split(",");
                        o.antennas = new short[ids.length];
                        for (int k = 0; k < ids.length; k++) {
                            o.antennas[k] = Short.parseShort(ids[k].trim());
                        }
                        i++;
                        break;
                    case "--filter":
                        o.epcPrefix = required(args[i], value).toUpperCase();
                        if (!o.epcPrefix.matches("[0-9A-F]+")) {
                            throw new IllegalArgumentException("--filter takes hexadecimal digits");
                        }
                        i++;
                        break;
                    case "--host":
                        o.host = required(args[i], value);
                        i++;
                        break;
                    default:
                        System.out.println("usage: demo [--duration MS] [--antennas 1,2,...] [--filter EPC-HEX-PREFIX]"
                                + " [--host NAME]");
                        return null;
                }
            }
            return o;
        }

        private static String required(String option, String value) {
            if (value == null) {
                throw new IllegalArgumentException(option + " needs a value");
            }
            return value;
        }
    }
}
