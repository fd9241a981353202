.pragma library

// Requests to the product's web service, as promises.

function send(method, url, succeeded, prepare) {
    return new Promise((resolve, reject) => {
        const request = new XMLHttpRequest();
        request.onreadystatechange = () => {
            if (request.readyState !== XMLHttpRequest.DONE)
                return;
            // No status at all: no server answered.
            if (request.status === 0)
                reject(new Error("Network error"));
            else if (succeeded(request.status))
                resolve({ text: request.responseText, url: request.responseURL });
            else
                reject(new Error("Request failed with status " + request.status));
        };
        request.open(method, url);
        prepare(request);
    });
}

function get(url) {
    return send("GET", url, status => status === 200, request => request.send());
}

function post(url, data) {
    return send("POST", url, status => status >= 200 && status <= 299, request => {
        request.setRequestHeader("Content-Type", "application/json");
        request.send(JSON.stringify(data));
    });
}
