# What nearly every source includes, compiled once for a target: three quarters of the compile time go into these headers.
function(merix_precompile target)
  target_precompile_headers(${target} PRIVATE <QHash> <QList> <QMap> <QString> <QStringList> <algorithm> <any>
    <functional> <memory> <vector>)
endfunction()
