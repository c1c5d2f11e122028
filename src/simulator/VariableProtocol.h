// The variable protocol: the host's named variables, dispatched by name per scene, and what each one does.
#pragma once

class CFlashSimulator;

/// SetVariable of the host: the name acts only in its own scene; unknown names and null texts do nothing.
void SetSimulatorVariable(CFlashSimulator& sim, const char* szName, const char* szValue);
/// GetVariable of the host: the login scene's getters, "" in the creation scene, null in any other.
const char* GetSimulatorVariable(CFlashSimulator& sim, const char* szName);
