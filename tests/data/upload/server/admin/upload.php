<?php
// What a hosted shop does with one uploaded file: keeps it under its bare name where files of its kind belong.
require 'store.php';

$folders = ['text/xml' => '/', 'image/gif' => '/pictures/', 'text/html' => '/templates/'];

$files = $_FILES['file'] ?? ['name' => []];
logRequest('upload', $files);
if (!knownLogin()) {
    exit('401');
}
if (count($files['name']) !== 1 || $files['error'][0] !== UPLOAD_ERR_OK) {
    exit('500');
}
$bareName = preg_replace('/^.*[\\\\\/]/s', '', $files['name'][0]);
$folder = $folders[$files['type'][0]] ?? exit('500');
move_uploaded_file($files['tmp_name'][0], storeFolder() . $folder . $bareName) || exit('500');
echo 'ok';
