package com.kovra.rfid.orla.demo;

import com.kovra.rfid.orla.ORLANatives;
import com.kovra.rfid.orla.OrlaLibrary;
import com.kovra.rfid.orla.TAG_DATA;
import com.kovra.rfid.orla.sim.SimControl;
import java.io.IOException;
import java.nio.file.Files;
import java.nio.file.Paths;
import java.util.ArrayList;
import java.util.List;
import java.util.function.IntSupplier;

/**
 * Runs many tag conversions (rfid_GetReadTags, one tag a call, through the tag writer) and then
 * many forwarder calls (RFID_StopInventory), and samples the process's resident memory (VmRSS of
 * /proc/self/status) at regular intervals. Memory that keeps growing points at something the
 * library allocates and never gives back: the run fails when, in either phase, the last sample
 * lies more than the tolerance above the sample halfway through the phase (the first half lets
 * the virtual machine settle: run it with a fixed, pre-touched heap, as scripts/bench.sh does).
 *
 * <p>Options: {@code --calls N} per phase (default 1000000), {@code --every N} (default 100000),
 * {@code --tolerance-kib N} (default 4096).
 */
public final class SoakRun {

    private SoakRun() {
    }

    public static void main(String[] args) throws IOException {
        int calls = RunSupport.intOption(args, "--calls", 1_000_000);
        int every = RunSupport.intOption(args, "--every", 100_000);
        long toleranceKib = RunSupport.intOption(args, "--tolerance-kib", 4 * 1024);
        OrlaLibrary.load();
        SimControl.reset();
        SimControl.record(false);
        int reader = RunSupport.connect("soak");
        SimControl.setOutput("rfid_GetReadTags", ReadTagsBench.tagRecord());
        TAG_DATA[] tags = {new TAG_DATA()};
        int[] count = new int[1];

        boolean grew = phase("tag conversions", calls, every, toleranceKib,
                () -> ORLANatives.rfid_GetReadTags(reader, 1, tags, count, true));
        grew |= phase("forwarder calls", calls, every, toleranceKib, () -> ORLANatives.RFID_StopInventory(reader));
        if (!"300012345678ABCDEF012345".equals(tags[0].tagID)) {
            throw new IllegalStateException("the tag came back as " + tags[0].tagID);
        }
        ORLANatives.RFID_DisConnect(reader);
        SimControl.reset();
        System.exit(grew ? 1 : 0);
    }

    /** Runs the call; true when the memory grew beyond the tolerance. */
    private static boolean phase(String name, int calls, int every, long toleranceKib, IntSupplier call)
            throws IOException {
        List<Long> samples = new ArrayList<>();
        long t0 = System.nanoTime();
        for (int i = 1; i <= calls; i++) {
            call.getAsInt();
            if (i % every == 0) {
                samples.add(residentKib());
            }
        }
        double seconds = (System.nanoTime() - t0) / 1e9;
        System.out.printf("soak: %s: %d calls in %.1f s; VmRSS every %d calls (KiB): %s%n", name, calls, seconds,
                every, samples);
        if (samples.size() < 2) {
            return false;
        }
        long growth = samples.get(samples.size() - 1) - samples.get((samples.size() - 1) / 2);
        boolean grew = growth > toleranceKib;
        System.out.printf("soak: %s: %+d KiB over the second half (tolerance %d KiB): %s%n", name, growth,
                toleranceKib, grew ? "GROWING" : "steady");
        return grew;
    }

    static long residentKib() throws IOException {
        for (String line : Files.readAllLines(Paths.get("/proc/self/status"))) {
            if (line.startsWith("VmRSS:")) {
                return Long.parseLong(line.replaceAll("[^0-9]", ""));
            }
        }
        throw new IllegalStateException("no VmRSS in /proc/self/status");
    }
}
