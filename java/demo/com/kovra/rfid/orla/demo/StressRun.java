package com.kovra.rfid.orla.demo;

import com.kovra.rfid.orla.MEMORY_BANK;
import com.kovra.rfid.orla.ORLANatives;
import com.kovra.rfid.orla.OrlaLibrary;
import com.kovra.rfid.orla.READ_ACCESS_PARAMS;
import com.kovra.rfid.orla.SINGULATION_CONTROL;
import com.kovra.rfid.orla.TAG_DATA;
import com.kovra.rfid.orla.TAG_STORAGE_SETTINGS;
import com.kovra.rfid.orla.sim.SimControl;
import com.kovra.rfid.orla.sim.SimReader;
import java.util.ArrayList;
import java.util.List;
import java.util.concurrent.atomic.AtomicLong;

/**
 * Many threads, each on its own simulated reader, call the library at once and check that every
 * Java object comes back with their own data and never with another thread's.
 *
 * <p>Thread t connects its own reader, runs an inventory on it and then makes mixed calls in
 * turn: setters then getters of settings the simulated reader keeps per reader (tag storage, duty
 * cycle, radio idle time-out, singulation control), each with values only thread t uses; tag
 * retrieval with rfid_GetReadTags, where thread t's reader cuts every identifier to t + 1 bytes;
 * a read of the user memory of the tag only thread t reads; and forwarders. Prints a summary and
 * exits with 1 on any mismatch or failed call.
 *
 * <p>Options: {@code --threads N} (default 16), {@code --calls N} per thread (default 100000).
 */
public final class StressRun {

    private static final int NO_READ_TAGS = 3;
    private static final int BATCH = 8;

    private final int thread;
    private final int calls;
    private final AtomicLong mismatches;
    private final String epc;
    private final String user;
    private long tagsChecked;
    private int handle;

    private StressRun(int thread, int calls, AtomicLong mismatches) {
        this.thread = thread;
        this.calls = calls;
        this.mismatches = mismatches;
        this.epc = epcOf(thread);
        this.user = userOf(thread);
    }

    public static void main(String[] args) throws InterruptedException {
        int threads = RunSupport.intOption(args, "--threads", 16);
        int calls = RunSupport.intOption(args, "--calls", 100_000);
        OrlaLibrary.load();
        SimControl.reset();
        SimControl.record(false);
        String problem = SimReader.loadTags(population(threads));
        if (problem != null) {
            throw new IllegalStateException("tag population: " + problem);
        }
        AtomicLong mismatches = new AtomicLong();
        List<StressRun> runs = new ArrayList<>();
        List<Thread> workers = new ArrayList<>();
        for (int t = 0; t < threads; t++) {
            StressRun run = new StressRun(t, calls, mismatches);
            runs.add(run);
            workers.add(new Thread(run::runChecked, "stress-" + t));
        }
        long t0 = System.nanoTime();
        workers.forEach(Thread::start);
        for (Thread worker : workers) {
            worker.join();
        }
        double seconds = (System.nanoTime() - t0) / 1e9;
        long tags = runs.stream().mapToLong(r -> r.tagsChecked).sum();
        System.out.printf("stress: %d threads x %d calls in %.1f s (%.0f calls/s), %d fetched tags checked, "
                + "%d mismatches%n", threads, calls, seconds, threads * (double) calls / seconds, tags, mismatches.get());
        SimControl.reset();
        System.exit(mismatches.get() == 0 && tags > 0 ? 0 : 1);
    }

    /** Tag t of the population: a 16-byte EPC and 4 bytes of user memory that only thread t reads. */
    static String population(int threads) {
        StringBuilder text = new StringBuilder();
        for (int t = 0; t < threads; t++) {
            text.append("EPC=").append(epcOf(t)).append(" USER=").append(userOf(t)).append(" ANT=1\n");
        }
        return text.toString();
    }

    private static String epcOf(int thread) {
        return String.format("E200%04X0123456789ABCDEF01234567", thread);
    }

    private static String userOf(int thread) {
        return String.format("%04XBEEF", thread);
    }

    private void runChecked() {
        try {
            run();
        } catch (RuntimeException e) {
            mismatch("stopped by " + e);
        }
    }

    private void run() {
        handle = RunSupport.connect("stress-" + thread);
        expect("inventory", ORLANatives.RFID_PerformInventory(handle, null, null, null));
        for (int i = 0; i < calls; i++) {
            step(i);
        }
        expect("stop", ORLANatives.RFID_StopInventory(handle));
        expect("disconnect", ORLANatives.RFID_DisConnect(handle));
    }

    /** A value no other thread uses, different at each step. */
    private int unique(int i) {
        return thread * 10_000_000 + i;
    }

    /** A short no other thread uses. */
    private short uniqueShort(int i) {
        return (short) (1000 * (thread + 1) + i % 1000);
    }

    private void step(int i) {
        switch (i % 8) {
            case 0:
                tagStorage(i);
                break;
            case 1:
                dutyCycle(i);
                break;
            case 2:
                idleTimeout(i);
                break;
            case 3:
                singulation(i);
                break;
            case 4:
            case 6:
                fetchTags();
                break;
            case 5:
                readUserMemory();
                break;
            default:
                expect("enable GPI", ORLANatives.RFID_EnableGPIPort(handle, 1, (i & 8) == 0));
                expect("set GPO", ORLANatives.RFID_SetGPOState(handle, 1 + thread % 2, (i & 8) == 0));
                break;
        }
    }

    private void dutyCycle(int i) {
        expect("set duty cycle", ORLANatives.RFID_SetDutyCycle(handle, uniqueShort(i)));
        short[] got = new short[1];
        expect("get duty cycle", ORLANatives.RFID_GetDutyCycle(handle, got));
        check("duty cycle", uniqueShort(i), got[0]);
    }

    private void idleTimeout(int i) {
        expect("set idle time-out", ORLANatives.RFID_TurnOffRadioWhenIdle(handle, unique(i)));
        int[] got = new int[1];
        expect("get idle time-out", ORLANatives.RFID_GetRadioIdleTimeout(handle, got));
        check("idle time-out", unique(i), got[0]);
    }

    private void tagStorage(int i) {
        TAG_STORAGE_SETTINGS set = new TAG_STORAGE_SETTINGS();
        set.maxTagCount = 100_000 + unique(i);
        set.maxMemoryBankByteCount = 64;
        set.maxTagIDByteCount = thread + 1;
        set.tagFields = (short) 0xFFFF;
        expect("set tag storage", ORLANatives.RFID_SetTagStorageSettings(handle, set));
        TAG_STORAGE_SETTINGS got = new TAG_STORAGE_SETTINGS();
        expect("get tag storage", ORLANatives.RFID_GetTagStorageSettings(handle, got));
        check("max tag count", set.maxTagCount, got.maxTagCount);
        check("max tag ID bytes", set.maxTagIDByteCount, got.maxTagIDByteCount);
    }

    private void singulation(int i) {
        SINGULATION_CONTROL set = new SINGULATION_CONTROL();
        set.tagPopulation = uniqueShort(i);
        set.tagTransitTimeMilliseconds = (short) thread;
        expect("set singulation", ORLANatives.RFID_SetSingulationControl(handle, 1, set));
        SINGULATION_CONTROL got = new SINGULATION_CONTROL();
        expect("get singulation", ORLANatives.RFID_GetSingulationControl(handle, 1, got));
        check("tag population", set.tagPopulation, got.tagPopulation);
        check("transit time", set.tagTransitTimeMilliseconds, got.tagTransitTimeMilliseconds);
    }

    /** This thread's reader cuts identifiers to thread + 1 bytes: any other length is another's tag. */
    private void fetchTags() {
        TAG_DATA[] tags = new TAG_DATA[BATCH];
        for (int k = 0; k < BATCH; k++) {
            tags[k] = new TAG_DATA();
        }
        int[] count = new int[1];
        int status = ORLANatives.rfid_GetReadTags(handle, BATCH, tags, count, true);
        if (status == NO_READ_TAGS) {
            return;
        }
        expect("get read tags", status);
        for (int k = 0; k < count[0]; k++) {
            check("tag ID length", thread + 1, tags[k].tagIDLength);
            String id = tags[k].tagID == null ? "" : tags[k].tagID;
            check("tag ID text", epc.substring(0, Math.min(4, 2 * (thread + 1))) + (2 * (thread + 1)),
                    id.substring(0, Math.min(4, id.length())) + id.length());
            tagsChecked++;
        }
    }

    private void readUserMemory() {
        READ_ACCESS_PARAMS params = new READ_ACCESS_PARAMS();
        params.memoryBank = MEMORY_BANK.MEMORY_BANK_USER;
        params.byteCount = 4;
        TAG_DATA tag = new TAG_DATA();
        expect("read", ORLANatives.RFID_Read(handle, epc, 16, params, null, null, tag, null, null, true));
        check("user memory", user, tag.memoryBankData);
    }

    private void expect(String what, int status) {
        if (status != 0) {
            mismatch(what + ": status " + status);
        }
    }

    private void check(String what, Object expected, Object got) {
        if (!expected.equals(got)) {
            mismatch(what + ": expected " + expected + ", got " + got);
        }
    }

    private void mismatch(String what) {
        if (mismatches.incrementAndGet() <= 20) {
            System.err.printf("thread %d: %s%n", thread, what);
        }
    }
}
