// The numbers by which the program can be reached from outside. Written apart from its own on purpose: scripts that
// drive the program rely on them.
#pragma once

namespace corvex::test {

enum Command : unsigned {
    kAbout = 104,
    kExit = 105,
    kLoadDefinition = 32772,
    kScan = 32774,
    kImportDefinition = 32779,
    kSaveDefinition = 32780,
    kSaveDefinitionAs = 32781,
    kPreferences = 32783,
    kEditDefinition = 32785,
    kNewDefinition = 32792,
    kRecord = 32804,
    kPlay = 32805,
    kStop = 32806,
    kPause = 32807,
    kLoadLog = 32808,
    kSpeed400 = 32809,
    kSpeed200 = 32810,
    kSpeed100 = 32811,
    kSpeed50 = 32812,
    kSpeed25 = 32813,
    kSpeedCustom = 32815,
    kJumpForward = 32832,  // whatever its menu text says
    kJumpBackward = 32833,
};

enum Control : int {
    kOutputId = 100,
    kSliderId = 1008,
    kVersionId = 1012,  // of the About box
    kToolBandId = 10000,
    kFileToolbarId = 10001,
    kLogToolbarId = 10008,
    kScanToolbarId = 10010,
    kPlayButton = 20000,
    kRecordButton = 20001,
    kStopButton = 20002,
    kPauseButton = 20003,
    kLoadButton = 20004,
    kStatusBarId = 50000,
    kLogPanelId = 50001,
    kLinkPanelId = 50002,
};

}  // namespace corvex::test
