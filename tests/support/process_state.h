// What the conversion keeps for the whole process, put back to its start: each test begins as a new process would.
#pragma once

void ResetProcessState();
