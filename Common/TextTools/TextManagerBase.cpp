#include "Common/TextTools/TextManagerBase.h"

TextManagerBase::~TextManagerBase() = default;
