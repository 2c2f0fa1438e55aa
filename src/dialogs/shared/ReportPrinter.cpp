#include "dialogs/shared/ReportPrinter.h"

namespace qv {

ReportPrinter::ReportPrinter(Form& owner, const TaskReport::Kind& kind, std::unique_ptr<ReportSource> source,
                             const char* module, std::function<void()> onPageSetupSaved)
    : owner_(owner),
      source_(std::move(source)),
      report_(kind, *source_, module),
      onSaved_(std::move(onPageSetupSaved)) {}

}  // namespace qv
