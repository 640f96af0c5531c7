// The registration of all functions that report templates can call.
#pragma once

/// RepSys first, SysRepUtils after it, whose functions replace those of the same name.
void registerReportFunctions();
