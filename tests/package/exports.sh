#!/bin/sh
# A library of the component shows its public interface and hides the rest:
# the dialogs, the store's connection and dialect, the data classes that
# only the dialogs use.
# Usage: exports.sh LIBRARY
set -eu
syms=$(nm -D --defined-only -C "$1")
status=0
for want in 'qv::clsTask2::SetupTask(' 'qv::clsTaskSchedule::AddTA(' 'qv::clsChecklistsInATask::GetDataKEY(' \
    'qv::DataSource::SetSQL(' 'qv::Recordset::MoveNext(' 'typeinfo for qv::Ui' 'typeinfo for qv::Reporter' \
    'typeinfo for qv::Clock' 'qv::ports()' 'qv::Form::openForms()' 'qv::g()' \
    'qv::clsHTMLMake::'; do
    printf '%s\n' "$syms" | grep -qF "$want" || { echo "not exported: $want"; status=1; }
done
for hide in 'qv::frmTask3::' 'qv::frmExistingTask::' 'qv::frmTAS2::' 'qv::frmAddProject::' 'qv::frmPopHelp::' \
    'qv::frmPageSetup::' 'typeinfo for qv::frm' \
    'qv::Connection::' 'qv::jet::' 'qv::clsNewTask::' 'qv::clsSettings::' 'qv::FieldCodec::' 'qv::LoadSettings(' 'sqlite3_'; do
    printf '%s\n' "$syms" | grep -F "$hide" && { echo "exported but private: $hide"; status=1; }
done
echo "$(printf '%s\n' "$syms" | grep -c 'qv::') qv symbols exported"
exit $status
