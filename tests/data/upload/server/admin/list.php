<?php
// What a hosted shop answers before an upload: its version, and a line for each picture that it has.
require 'store.php';

logRequest('list', []);
if (!knownLogin()) {
    exit('401');
}
echo serverVersion(), '|';
foreach (glob(storeFolder() . '/pictures/*') as $path) {
    echo basename($path), '|', filesize($path), '|', date('d.m.Y', filemtime($path)), "\r\n";
}
