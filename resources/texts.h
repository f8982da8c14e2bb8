// The compiled-in translation catalogues (":/<code>.qm"). Registration also
// happens during static initialisation when the object is linked in; calling
// it again is harmless and makes the dependency explicit at start-up.
#pragma once

// Registers the "texts" collection; returns 1.
int qInitResources_texts();
// Unregisters it; returns 1.
int qCleanupResources_texts();
