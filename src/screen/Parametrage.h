#pragma once
// The side panel in which a parameter set is shown or edited.
void AfficheParamétrage();
void CacheParamétrage();
