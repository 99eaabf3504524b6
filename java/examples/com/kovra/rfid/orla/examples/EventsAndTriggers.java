package com.kovra.rfid.orla.examples;

import com.kovra.rfid.orla.ORLANatives;
import com.kovra.rfid.orla.RFID_EVENT_TYPE;
import com.kovra.rfid.orla.STOP_TRIGGER_TYPE;
import com.kovra.rfid.orla.TRIGGER_WITH_TIMEOUT;
import com.kovra.rfid.orla.TRIGGER_INFO;

import java.util.HashSet;
import java.util.Set;

/**
 * Events and triggers: an inventory that stops by itself, followed through the reader's events.
 *
 * <p>Registers one event handle each for the inventory start, tag read and inventory stop events, starts an
 * inventory whose stop trigger ends it after a number of tag observations (or a time-out), and waits on the
 * three handles at once: tags are fetched in batches on every read event, until the stop event arrives.
 *
 * <p>Usage: {@code EventsAndTriggers [host]}; by default the simulated reader.
 */
public final class EventsAndTriggers {

    /** The events waited on, in the order of the handle array. */
    private static final RFID_EVENT_TYPE[] EVENTS = {
        RFID_EVENT_TYPE.INVENTORY_START_EVENT, RFID_EVENT_TYPE.TAG_READ_EVENT, RFID_EVENT_TYPE.INVENTORY_STOP_EVENT,
    };
    /** Result of a wait that timed out; a signalled handle gives 0 plus its index. */
    private static final int WAIT_TIMEOUT = 258;
    /** Stop after this many tag observations... */
    private static final short STOP_AFTER_TAGS = 20;
    /** ...or after this many milliseconds, whichever comes first. */
    private static final int STOP_TIMEOUT_MS = 2000;

    private EventsAndTriggers() {
    }

    public static void main(String[] args) {
        ExampleReader.run(args, EventsAndTriggers::follow);
    }

    private static void follow(ExampleReader reader) {
        // Event handles: auto-reset (a successful wait resets them), created non-signalled. Waits on several
        // handles take them as longs; the single-handle methods take them as ints.
        long[] handles = new long[EVENTS.length];
        for (int i = 0; i < EVENTS.length; i++) {
            handles[i] = ORLANatives.rfidUtils_CreateEvent(0, 0, 0);
            reader.check("register " + EVENTS[i], ORLANatives.RFID_RegisterEventNotification(reader.handle,
                    EVENTS[i], (int) handles[i]));
        }
        try {
            reader.check("start inventory", ORLANatives.RFID_PerformInventory(reader.handle, null, null,
                    observationTrigger()));
            collect(reader, handles);

            // The stop event was consumed by the wait that saw it: waiting again times out.
            int again = ORLANatives.rfidUtils_WaitForSingleObject((int) handles[2], 100);
            System.out.printf("wait for another stop event: %d%s%n", again,
                    again == WAIT_TIMEOUT ? " (time-out)" : "");
        } finally {
            for (int i = 0; i < EVENTS.length; i++) {
                ORLANatives.RFID_DeregisterEventNotification(reader.handle, EVENTS[i]);
                ORLANatives.rfidUtils_CloseHandle((int) handles[i]);
            }
        }
    }

    /** Starts at once (the default start trigger) and stops after a number of tag observations. */
    private static TRIGGER_INFO observationTrigger() {
        TRIGGER_INFO trigger = new TRIGGER_INFO();
        trigger.stopTrigger.type = STOP_TRIGGER_TYPE.STOP_TRIGGER_TYPE_TAG_OBSERVATION_WITH_TIMEOUT;
        trigger.stopTrigger.value.tagObservation = new TRIGGER_WITH_TIMEOUT();
        trigger.stopTrigger.value.tagObservation.n = STOP_AFTER_TAGS;
        trigger.stopTrigger.value.tagObservation.timeoutMilliseconds = STOP_TIMEOUT_MS;
        return trigger;
    }

    /** Waits on the three events until the inventory stops, fetching the tags of every read event. */
    private static void collect(ExampleReader reader, long[] handles) {
        Set<String> distinct = new HashSet<>();
        int reads = 0;
        long started = System.currentTimeMillis();
        while (true) {
            int wait = ORLANatives.rfidUtils_WaitForMultipleObjects(handles.length, handles, false,
                    2 * STOP_TIMEOUT_MS);
            if (wait < 0 || wait >= handles.length) {
                System.out.printf("no event within %d ms: wait result %d%n", 2 * STOP_TIMEOUT_MS, wait);
                break;
            }
            RFID_EVENT_TYPE event = EVENTS[wait];
            if (event == RFID_EVENT_TYPE.TAG_READ_EVENT) {
                int fetched = reader.fetchTags(tag -> distinct.add(tag.tagID));
                reads += fetched;
                System.out.printf("event %s: %d tags fetched%n", event, fetched);
            } else {
                System.out.printf("event %s after %d ms%n", event, System.currentTimeMillis() - started);
            }
            if (event == RFID_EVENT_TYPE.INVENTORY_STOP_EVENT) {
                reads += reader.fetchTags(tag -> distinct.add(tag.tagID)); // what came after the last read event
                break;
            }
        }
        System.out.printf("%d distinct tags in %d reads%n", distinct.size(), reads);
    }
}
