#pragma once
// The side panel in which a parameter set is shown or edited.
#include "engine/communs.h"

// The set being saved must become the one used at the next starts.
extern i16 LancementDemandé;

void AfficheParamétrage();
void CacheParamétrage();
