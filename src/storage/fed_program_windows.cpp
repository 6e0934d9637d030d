#include "storage/fed_program.h"

namespace starfolds {

FedProgram::~FedProgram() = default;

FedProgram::Fault FedProgram::Start(const std::vector<std::string>&,
                                    const std::vector<std::string>&) {
  return "this program starts no others on Windows";
}

FedProgram::Fault FedProgram::Write(std::string_view) { return Reason(EPIPE); }

FedProgram::Fault FedProgram::Finish() { return Reason(ECHILD); }

}  // namespace starfolds
