// Fills the suite's image lists: which picture stands under which index.
#pragma once

class TsData;

void fillImageLists(TsData& data);
