package com.kovra.rfid.orla;

import com.kovra.rfid.orla.sim.SimControl;
import org.junit.jupiter.api.BeforeAll;
import org.junit.jupiter.api.BeforeEach;

/**
 * Base of the tests that call the natives: loads the simulated reader API
 * and the JNI library once, and starts every test with an empty journal,
 * no scripted statuses and no open sessions.
 */
public abstract class NativeTest {

    @BeforeAll
    static void loadLibraries() {
        OrlaLibrary.load();
    }

    @BeforeEach
    void resetSimulator() {
        SimControl.reset();
    }
}
