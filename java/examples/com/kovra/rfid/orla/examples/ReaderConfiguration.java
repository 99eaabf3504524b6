package com.kovra.rfid.orla.examples;

import com.kovra.rfid.orla.ANTENNA_RF_CONFIG;
import com.kovra.rfid.orla.ANTENNA_STOP_TRIGGER_TYPE;
import com.kovra.rfid.orla.INVENTORY_STATE;
import com.kovra.rfid.orla.ORLANatives;
import com.kovra.rfid.orla.READER_CAPS;
import com.kovra.rfid.orla.READER_INFO;
import com.kovra.rfid.orla.SESSION;
import com.kovra.rfid.orla.SINGULATION_CONTROL;
import com.kovra.rfid.orla.SL_FLAG;
import com.kovra.rfid.orla.STATE_AWARE_SINGULATION_ACTION;

/**
 * Reader configuration: capabilities, antenna power and singulation.
 *
 * <p>Reads what the reader can do, sets antenna 1 to the highest transmit power the reader offers (power is
 * an index into the capabilities' power table, not a value in dBm) and checks it, sets the Gen2 session of
 * antenna 1 and checks it, and prints the reader's identity.
 *
 * <p>Usage: {@code ReaderConfiguration [host]}; by default the simulated reader.
 */
public final class ReaderConfiguration {

    private static final short ANTENNA = 1;

    private ReaderConfiguration() {
    }

    public static void main(String[] args) {
        ExampleReader.run(args, ReaderConfiguration::configure);
    }

    private static void configure(ExampleReader reader) {
        // The capabilities object holds the arrays the tables are copied into; the no-argument constructor
        // makes them large enough for any reader.
        READER_CAPS caps = new READER_CAPS();
        reader.check("reader capabilities", ORLANatives.RFID_GetReaderCaps(reader.handle, caps));
        int levels = caps.transmitPowerLevelTable.numValues;
        System.out.printf("model %s, %d antennas, %d transmit power levels%n", caps.modelName, caps.numAntennas,
                levels);
        if (levels == 0) {
            System.out.println("no transmit power levels: nothing to configure");
            return;
        }

        // Antenna power: the index of the last (highest) entry of the power table.
        ANTENNA_RF_CONFIG config = new ANTENNA_RF_CONFIG();
        reader.check("antenna 1 RF configuration", ORLANatives.RFID_GetAntennaRfConfig(reader.handle, ANTENNA,
                config));
        System.out.printf("  transmit power index %d, receive sensitivity index %d, tari %d%n",
                config.transmitPowerIndex, config.receiveSensitivityIndex, config.tari);
        int highest = levels - 1;
        config.transmitPowerIndex = highest;
        // A get fills the ordinal enumstopTriggerType, a set sends the enum stopTriggerType: carry it over so
        // that the set keeps the antenna's stop trigger.
        config.antennaStopTrigger.stopTriggerType =
                ANTENNA_STOP_TRIGGER_TYPE.values()[config.antennaStopTrigger.enumstopTriggerType];
        reader.check("set antenna 1 transmit power index to " + highest,
                ORLANatives.RFID_SetAntennaRfConfig(reader.handle, ANTENNA, config));
        ANTENNA_RF_CONFIG readBack = new ANTENNA_RF_CONFIG();
        reader.check("antenna 1 RF configuration", ORLANatives.RFID_GetAntennaRfConfig(reader.handle, ANTENNA,
                readBack));
        System.out.printf("antenna 1 transmit power index reads back %d: %s%n", readBack.transmitPowerIndex,
                readBack.transmitPowerIndex == highest ? "match" : "differ");

        // Singulation: a get fills the ordinals enumSession, enumInventoryState and enumSLFlag, a set sends the
        // enum fields session, inventoryState and slFlag. Carry the state-aware action over, change the session,
        // the expected tag population and the transit time.
        SINGULATION_CONTROL singulation = new SINGULATION_CONTROL();
        reader.check("singulation control of antenna 1", ORLANatives.RFID_GetSingulationControl(reader.handle,
                ANTENNA, singulation));
        STATE_AWARE_SINGULATION_ACTION action = singulation.stateAwareSingulationAction;
        action.inventoryState = INVENTORY_STATE.values()[action.enumInventoryState];
        action.slFlag = SL_FLAG.values()[action.enumSLFlag];
        singulation.session = SESSION.SESSION_S1;
        singulation.tagPopulation = 50;
        singulation.tagTransitTimeMilliseconds = 200;
        reader.check("set singulation control of antenna 1", ORLANatives.RFID_SetSingulationControl(reader.handle,
                ANTENNA, singulation));
        SINGULATION_CONTROL singulationBack = new SINGULATION_CONTROL();
        reader.check("singulation control of antenna 1", ORLANatives.RFID_GetSingulationControl(reader.handle,
                ANTENNA, singulationBack));
        System.out.printf("session reads back %d: %s%n", singulationBack.enumSession,
                singulationBack.enumSession == SESSION.SESSION_S1.ordinal() ? "match" : "differ");

        READER_INFO info = new READER_INFO();
        reader.check("reader information", ORLANatives.RFID_GetReaderInfo(reader.handle, info));
        System.out.printf("  name %s, location %s%n", info.name, info.location);
    }
}
