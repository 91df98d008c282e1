#include "mathservices/faults.h"

const char* FaultDescription(int number) {
    switch (number) {
    case kFaultInvalidCall: return "Invalid procedure call or argument";
    case kFaultOverflow: return "Overflow";
    case kFaultSubscript: return "Subscript out of range";
    case kFaultDivisionByZero: return "Division by zero";
    case kFaultRetryLimit: return "Can't perform requested operation";
    default: return "Application-defined or object-defined error";
    }
}
