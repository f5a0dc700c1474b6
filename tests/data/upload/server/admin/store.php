<?php
// Where this server keeps what it receives: a folder that the environment names, with a line in requests.log for each
// request.

function storeFolder(): string
{
    return getenv('TARNWICK_STORE');
}

function serverVersion(): string
{
    return '1.2.0';
}

function knownLogin(): bool
{
    return ($_POST['username'] ?? '') === 'anna' && ($_POST['password'] ?? '') === 's3cret';
}

function logRequest(string $page, array $files): void
{
    $line = [
        'page' => $page,
        'method' => $_SERVER['REQUEST_METHOD'],
        'version' => $_POST['version'] ?? null,
        'sentName' => $files['full_path'][0] ?? null,
        'name' => $files['name'][0] ?? null,
        'type' => $files['type'][0] ?? null,
    ];
    $text = json_encode($line, JSON_UNESCAPED_SLASHES | JSON_INVALID_UTF8_SUBSTITUTE);
    file_put_contents(storeFolder() . '/requests.log', $text . "\n", FILE_APPEND);
}
