// Organisation chart of the embedded web view. Plain DOM, no library needed.
// Data is a tree of {id, name, role, children: [...]}. The host hands it over
// either by calling orvOrgChart.render(treeOrJson) or, inside a web view with a
// web channel, through the channel object "orgChart" (property "data" and
// signal "dataChanged(json)"); a click on a node calls its slot "select(id)".
(function () {
    "use strict";

    var host = null;

    function parse(data) {
        if (typeof data !== "string")
            return data;
        try {
            return JSON.parse(data);
        } catch (e) {
            console.warn("orgChart: invalid data: " + e.message);
            return null;
        }
    }

    function text(tag, cls, value) {
        var el = document.createElement(tag);
        el.className = cls;
        el.textContent = value === undefined || value === null ? "" : String(value);
        return el;
    }

    // Iterative build, so deep trees cannot exhaust the call stack.
    function build(root) {
        var list = document.createElement("ul");
        list.className = "org";
        var pending = [{ node: root, parent: list }];
        while (pending.length) {
            var item = pending.pop();
            var li = document.createElement("li");
            var box = document.createElement("div");
            box.className = "node";
            box.dataset.id = item.node.id === undefined ? "" : String(item.node.id);
            box.appendChild(text("div", "name", item.node.name));
            if (item.node.role)
                box.appendChild(text("div", "role", item.node.role));
            li.appendChild(box);
            item.parent.appendChild(li);
            var children = Array.isArray(item.node.children) ? item.node.children : [];
            if (children.length) {
                var sub = document.createElement("ul");
                li.appendChild(sub);
                // pushed in reverse so that siblings keep their order
                for (var i = children.length - 1; i >= 0; --i)
                    pending.push({ node: children[i], parent: sub });
            }
        }
        return list;
    }

    function render(data) {
        var chart = document.getElementById("chart");
        if (!chart)
            return;
        var tree = parse(data);
        chart.textContent = "";
        if (!tree || typeof tree !== "object") {
            chart.appendChild(text("p", "empty", "No organisation loaded."));
            return;
        }
        chart.appendChild(build(tree));
    }

    function onClick(event) {
        var box = event.target.closest ? event.target.closest(".node") : null;
        if (!box)
            return;
        var previous = document.querySelector(".node.selected");
        if (previous)
            previous.classList.remove("selected");
        box.classList.add("selected");
        if (host && typeof host.select === "function")
            host.select(box.dataset.id);
    }

    function connectHost() {
        if (typeof QWebChannel === "undefined" || !window.qt || !window.qt.webChannelTransport)
            return;
        new QWebChannel(window.qt.webChannelTransport, function (channel) {
            host = channel.objects.orgChart || null;
            if (!host)
                return;
            if (host.dataChanged)
                host.dataChanged.connect(render);
            if (host.data)
                render(host.data);
        });
    }

    window.orvOrgChart = { render: render };

    document.addEventListener("DOMContentLoaded", function () {
        document.addEventListener("click", onClick);
        connectHost();
    });
})();
