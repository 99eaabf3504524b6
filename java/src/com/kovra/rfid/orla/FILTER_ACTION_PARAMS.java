package com.kovra.rfid.orla;

/** Action of a pre-filter; state-aware parameters take precedence over the state-unaware action. */
public class FILTER_ACTION_PARAMS {
    /** Optional. */
    public STATE_UNAWARE_ACTION stateUnawareAction;
    /** Optional. */
    public STATE_AWARE_ACTION_PARAMS stateAwareParams;
}
