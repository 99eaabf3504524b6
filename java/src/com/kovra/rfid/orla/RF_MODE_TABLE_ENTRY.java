package com.kovra.rfid.orla;

/** One RF mode of the reader. */
public class RF_MODE_TABLE_ENTRY {
    /** Identifier of the mode (the field keeps the reader's spelling). */
    public int modeIdentifer;
    public int enumDivideRatio;
    public int bdrValue;
    public int enumModulation;
    public int enumForwardLinkModulationType;
    public int pieValue;
    public int minTariValue;
    public int maxTariValue;
    public int stepTariValue;
    public int enumSpectralMaskIndicator;
    public boolean epcHAGTCConformance;
}
