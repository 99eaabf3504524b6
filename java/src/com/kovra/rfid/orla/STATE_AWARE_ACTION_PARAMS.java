package com.kovra.rfid.orla;

/** Target and action of a state-aware pre-filter; null members are not sent. */
public class STATE_AWARE_ACTION_PARAMS {
    public TARGET target;
    public STATE_AWARE_ACTION stateAwareAction;
}
