// The configuration records of the C API as the reader sees them, one
// description each (see record_layout.h): tag storage and singulation,
// capabilities and the tables they point to, antenna and radio settings,
// GPIO and LED, reader information, clock, statistics and health, profiles,
// updates and user applications.
#pragma once

#include "record/record_layout.h"

namespace sim::layout {

// Tag storage and singulation.
const Record& TagStorageSettings();  // TAG_STORAGE_SETTINGS
const Record& SingulationControl();  // SINGULATION_CONTROL

// Capabilities, with the tables they point to.
const Record& ReaderId();                  // READER_ID
const Record& ReceiveSensitivityTable();   // RECEIVE_SENSITIVITY_TABLE
const Record& RfModeTableEntry();          // RF_MODE_TABLE_ENTRY
const Record& UhfRfModeTable();            // UHF_RF_MODE_TABLE
const Record& RfModes();                   // RF_MODES
const Record& TransmitPowerLevelTable();   // TRANSMIT_POWER_LEVEL_TABLE
const Record& FreqHopTable();              // FREQ_HOP_TABLE
const Record& FreqHopInfo();               // FREQ_HOP_INFO
const Record& FixedFreqInfo();             // FIXED_FREQ_INFO
const Record& DutyCycleTable();            // DUTY_CYCLE_TABLE
const Record& ReaderCaps();                // READER_CAPS

// Antennas.
const Record& AntennaStopTrigger();     // ANTENNA_STOP_TRIGGER
const Record& AntennaRfConfig();        // ANTENNA_RF_CONFIG, as the reader keeps and returns it
const Record& AntennaRfConfigBlock();   // the same at the start of the block the library sets it from
const Record& CableLossCompensation();  // CABLE_LOSS_COMPENSATION

// Radio, GPIO and LED.
const Record& UsbOperationModeSettings();  // USB_OPERATION_MODE_SETTINGS
const Record& DutyCycleScratch();          // the duty-cycle calls' scratch area
const Record& GpiDebounce();               // GPI_DEBOUNCE_RECORD
const Record& LedInfo();                   // LED_INFO

// Reader information, clock (SYSTEMTIME, record_layouts.h), statistics and
// health.
const Record& StructInfo();    // STRUCT_INFO
const Record& SystemInfo();    // SYSTEM_INFO
const Record& ReaderInfo();    // READER_INFO
const Record& TimeZoneList();  // TIME_ZONE_LIST
const Record& ReaderStats();   // READER_STATS
const Record& HealthDetail();  // what the health query's fourth argument designates

// Profiles, updates and user applications.
const Record& ProfileList();   // PROFILE_LIST
const Record& UpdateInfo();    // UPDATE_INFO
const Record& UpdateStatus();  // UPDATE_STATUS
const Record& UserAppInfo();   // USER_APP_INFO
const Record& UserAppList();   // USER_APP_LIST

}  // namespace sim::layout
