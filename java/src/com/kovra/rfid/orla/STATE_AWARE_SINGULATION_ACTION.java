package com.kovra.rfid.orla;

/**
 * State-aware part of the singulation control. Setting reads inventoryState and slFlag; getting writes
 * enumInventoryState and enumSLFlag instead.
 */
public class STATE_AWARE_SINGULATION_ACTION {
    public boolean perform;
    public INVENTORY_STATE inventoryState = INVENTORY_STATE.INVENTORY_STATE_A;
    public SL_FLAG slFlag = SL_FLAG.SL_ALL;
    /** Filled by RFID_GetSingulationControl. */
    public short enumInventoryState;
    /** Filled by RFID_GetSingulationControl. */
    public short enumSLFlag;
}
