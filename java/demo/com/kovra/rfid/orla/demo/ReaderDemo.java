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
    /** The table's lines; the EPC column holds a 256-bit EPC (64 hexadecimal digits). */
    private static final String HEADER_FORMAT = "%-64s %7s %6s %7s  %s%n";
    private static final String ROW_FORMAT = "%-64s %7d %6d %7d  %s%n";

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

    /** Exit status of a usage error. */
    private static final int USAGE = 2;

    public static void main(String[] args) {
        Options options;
        try {
            options = Options.parse(args);
        } catch (UsageError e) {
            System.err.println("demo: " + e.getMessage());
            System.err.println(Options.SYNOPSIS);
            System.err.println("(--help lists the options)");
            System.exit(USAGE);
            return;
        }
        if (options.help) {
            System.out.printf(Options.HELP);
            return;
        }
        try {
            OrlaLibrary.load();
        } catch (UnsatisfiedLinkError e) {
            System.err.println("demo: " + e.getMessage());
            System.exit(1);
        }
        System.exit(new ReaderDemo(options).run());
    }

    private int run() {
        long[] handleOut = new long[1];
        int status = ORLANatives.RFID_Connect(handleOut, options.host, options.port, 0, new CONNECTION_INFO());
        if (status != 0) {
            return fail("connect", status);
        }
        int reader = (int) handleOut[0];
        out.printf("connected to %s:%d, reader handle %d%n", options.host, options.port, reader);
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
        out.printf(HEADER_FORMAT, "EPC", "antenna", "RSSI", "count", "field");
        List<Row> sorted = new ArrayList<>(rows.values());
        sorted.sort((a, b) -> a.epc.equals(b.epc) ? Short.compare(a.antenna, b.antenna) : a.epc.compareTo(b.epc));
        for (Row row : sorted) {
            out.printf(ROW_FORMAT, row.epc, row.antenna, row.peakRssi, row.count,
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

    /** A command line the demo cannot run with; main reports it without a stack trace. */
    static final class UsageError extends Exception {
        private static final long serialVersionUID = 1L;

        UsageError(String message) {
            super(message);
        }
    }

    /** Command-line options. */
    static final class Options {
        static final String SYNOPSIS = "usage: demo [--duration MS] [--antennas 1,2,...] [--filter EPC-HEX-PREFIX]"
                + " [--host NAME] [--port N] [--help]";
        static final String HELP = SYNOPSIS + "%n"
                + "Runs an inventory on the reader and shows a live table of the tags it reads.%n"
                + "  --duration MS      how long the inventory runs, in milliseconds (default 3000)%n"
                + "  --antennas 1,3     the antennas to read with (default: every antenna)%n"
                + "  --filter HEX       only EPCs that begin with these hexadecimal digits (default: every tag)%n"
                + "  --host NAME        the reader's host name (default sim-reader)%n"
                + "  --port N           the reader's port (default 5084)%n"
                + "  --help             this text%n"
                + "The simulated reader ignores the host and the port. Its tags are built in, or read from%n"
                + "the file that the environment variable HALYARD_SIM_TAGS names (docs/simulated-tags.md).%n";

        boolean help;
        String host = "sim-reader";
        int port = 5084;
        int durationMs = 3000;
        short[] antennas;
        String antennasText;
        String epcPrefix;

        static Options parse(String[] args) throws UsageError {
            Options o = new Options();
            for (int i = 0; i < args.length; i++) {
                String option = args[i];
                if (option.equals("--help") || option.equals("-h")) {
                    o.help = true;
                    continue;
                }
                String value = i + 1 < args.length ? args[++i] : null;
                switch (option) {
                    case "--duration":
                        o.durationMs = number(option, value, 1, Integer.MAX_VALUE);
                        break;
                    case "--antennas":
                        o.antennasText = required(option, value);
                        String[] ids = o.antennasText.split(",");
                        o.antennas = new short[ids.length];
                        for (int k = 0; k < ids.length; k++) {
                            o.antennas[k] = (short) number(option, ids[k].trim(), 1, Short.MAX_VALUE);
                        }
                        break;
                    case "--filter":
                        o.epcPrefix = required(option, value).toUpperCase();
                        if (!o.epcPrefix.matches("[0-9A-F]{1,64}")) {
                            throw new UsageError("--filter takes 1 to 64 hexadecimal digits, not '" + value + "'");
                        }
                        break;
                    case "--host":
                        o.host = required(option, value);
                        break;
                    case "--port":
                        o.port = number(option, value, 1, 65535);
                        break;
                    default:
                        throw new UsageError("unknown option '" + option + "'");
                }
            }
            return o;
        }

        private static String required(String option, String value) throws UsageError {
            if (value == null) {
                throw new UsageError(option + " needs a value");
            }
            return value;
        }

        private static int number(String option, String value, int min, int max) throws UsageError {
            String text = required(option, value);
            try {
                int n = Integer.parseInt(text);
                if (n >= min && n <= max) {
                    return n;
                }
            } catch (NumberFormatException e) {
                // reported below
            }
            throw new UsageError(option + " takes a number from " + min + " to " + max + ", not '" + text + "'");
        }
    }
}
