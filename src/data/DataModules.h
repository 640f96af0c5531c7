// The six data modules, made together in their fixed order. Making them connects nothing.
#pragma once

#include "data/DataSYS.h"
#include "data/DataUCFG.h"
#include "data/DataUCMN.h"
#include "data/DataUMST.h"
#include "data/DataUTIL.h"
#include "data/DataUVEL.h"

void createDataModules();
/// Commits direct work that waits, disconnects and frees all modules, the last made first.
void freeDataModules();
